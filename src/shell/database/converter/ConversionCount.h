#pragma once

#include <QCoreApplication>
#include <QList>
#include <QPair>
#include <QStringList>

/** Counts the rows of one table: read, written and skipped, with the reasons. */
class ConversionCount
{
    Q_DECLARE_TR_FUNCTIONS(ConversionCount)

public:
    explicit ConversionCount(const QString& table) : m_table(table) {}

    void countRead() { ++m_read; }
    void countWritten() { ++m_written; }
    void skip(const QString& key, const QString& reason);
    /** The row was written with changed values. */
    void mend(const QString& key, const QString& what) { add(m_mended, what, key); }
    void fail(const QString& reason) { m_failure = reason; }

    [[nodiscard]] int read() const { return m_read; }
    [[nodiscard]] const QString& failure() const { return m_failure; }
    /** The counts, then one line per reason with the keys of its rows; at most keysShown keys, 0 for all. */
    [[nodiscard]] QStringList report(int keysShown) const;

private:
    using Reasons = QList<QPair<QString, QStringList>>;

    static void add(Reasons& reasons, const QString& reason, const QString& key);
    static QString listed(const QStringList& keys, int keysShown);

    QString m_table;
    int m_read = 0;
    int m_written = 0;
    int m_skipped = 0;
    Reasons m_skips;
    Reasons m_mended;
    QString m_failure;
};
