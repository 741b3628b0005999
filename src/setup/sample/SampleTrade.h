#pragma once

#include <QCoreApplication>
#include <QDate>
#include <QSqlDatabase>

#include <functional>

/**
 * Fills an installed database without trade with a restaurant and its trade up to yesterday: for measuring, and for a
 * shop to look at. All of it is one transaction, so that a run that fails or is stopped leaves nothing behind. Whoever
 * calls it twice on one day with the same wishes on fresh installations gets the same rows.
 */
class SampleTrade
{
    Q_DECLARE_TR_FUNCTIONS(SampleTrade)

public:
    struct Wishes
    {
        int months = 12;
        /** Parties and customers a day, on the average of a year. */
        int perDay = 100;
        int seed = 1;
    };
    /** Is told each step's percentage and words. */
    using Progress = std::function<void(int, const QString&)>;

    SampleTrade(const QSqlDatabase& database, const Wishes& wishes, Progress progress);

    /** False when the database holds trade, or when a statement failed; then nothing has changed. */
    [[nodiscard]] bool run();
    /** In words why not. */
    [[nodiscard]] QString failure() const { return m_failure; }

private:
    [[nodiscard]] bool mayFill();
    /** What holds for all statements; the currency is that of the installation's locale. */
    void fixValues();
    [[nodiscard]] bool fill();
    [[nodiscard]] bool fillMonths();
    [[nodiscard]] bool fillMonth(const QDate& month);
    [[nodiscard]] bool readNumbers(const QDate& from, const QDate& to);
    [[nodiscard]] bool exec(const QStringList& statements);
    [[nodiscard]] QString filledIn(QString statement) const;

    QSqlDatabase m_database;
    Wishes m_wishes;
    Progress m_progress;
    QDate m_today;
    QDate m_begin;
    QList<QPair<QString, QString>> m_values;
    QList<QPair<QString, QString>> m_monthValues;
    QString m_failure;
};
