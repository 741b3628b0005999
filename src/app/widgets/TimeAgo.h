#pragma once

#include <QCoreApplication>
#include <QDateTime>
#include <QString>

/** The texts for timeAgo(); a number is put before the plural ones. */
struct TimeAgoWords
{
    Q_DECLARE_TR_FUNCTIONS(TimeAgoWords)

public:
    QString oneSecond;
    QString seconds;
    QString oneMinute;
    QString minutes;
    QString oneHour;
    QString hours;
    QString yesterday;
    QString days;
    QString oneMonth;
    QString months;
    QString oneYear;
    QString years;

    /** In the program's language; "second" and "day" have no plural. */
    [[nodiscard]] static TimeAgoWords onScreen();
    /** For kitchen slips: always Indonesian. */
    [[nodiscard]] static const TimeAgoWords& onSlips();
};

/**
 * How long ago the moment was, in words. 45 minutes already count as one hour and 360 days as one year. A moment in the
 * future gives a negative number of seconds.
 */
[[nodiscard]] QString timeAgo(const QDateTime& moment, const QDateTime& now, const TimeAgoWords& words);
