#include "app/widgets/TimeAgo.h"

TimeAgoWords TimeAgoWords::onScreen()
{
    return {tr("1 second"),  tr(" second"), tr("1 minute"), tr(" minutes"), tr("1 hour"), tr(" hours"),
            tr("yesterday"), tr(" day"),    tr("1 month"),  tr(" months"),  tr("1 year"), tr(" years")};
}

const TimeAgoWords& TimeAgoWords::onSlips()
{
    static const TimeAgoWords words{"1 detik", " detik", "1 menit", " menit", "1 jam",   " jam",
                                    "kemaren", " hari",  "1 bulan", " bulan", "1 tahun", " tahun"};
    return words;
}

QString timeAgo(const QDateTime& moment, const QDateTime& now, const TimeAgoWords& words)
{
    constexpr qint64 minute = 60;
    constexpr qint64 hour = 3600;
    constexpr qint64 day = 86400;

    const qint64 seconds = moment.secsTo(now);
    const auto counted = [](qint64 number, const QString& word) { return QString::number(number) + word; };
    if (seconds < minute)
        return seconds == 1 ? words.oneSecond : counted(seconds, words.seconds);
    if (seconds < 2 * minute)
        return words.oneMinute;
    if (seconds < 45 * minute)
        return counted(seconds / minute, words.minutes);
    if (seconds < 90 * minute)
        return words.oneHour;
    if (seconds < day)
        return counted(seconds / hour, words.hours);
    if (seconds < 2 * day)
        return words.yesterday;
    if (seconds < 30 * day)
        return counted(seconds / day, words.days);
    if (seconds < 360 * day) {
        const qint64 months = seconds / day / 30;
        return months < 2 ? words.oneMonth : counted(months, words.months);
    }
    const qint64 years = seconds / day / 365;
    return years < 2 ? words.oneYear : counted(years, words.years);
}
