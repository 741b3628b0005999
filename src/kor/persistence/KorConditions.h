#pragma once

#include "kor/entity/KorEntity.h"
#include "kor/persistence/KorPaging.h"

#include <QDate>
#include <QVariant>

/**
 * The WHERE and ORDER BY of a list or finder. All conditions are joined with AND. An expression is SQL (a column,
 * "lower(no)"); with several, one must match. Callers' values never become part of the SQL unquoted.
 *
 * A period, a search text or an optional filter makes it a search, which the server plans for its values each time; see
 * KorPaging::setPlannedForValues().
 */
class KorConditions
{
public:
    KorConditions& equals(const QString& expression, const QVariant& value);
    KorConditions& equals(const QStringList& expressions, const QVariant& value);
    KorConditions& differs(const QString& expression, const QVariant& value);
    KorConditions& oneOf(const QString& expression, const QList<int>& ids);
    /**
     * The column is one of the ids that the query finds, for a big table and few ids: they are found first, whatever
     * the rest of the statement looks like, and then their rows by the column's index.
     */
    KorConditions& among(const QString& column, const QString& query);
    /** Both dates inclusive; an invalid date sets no limit. */
    KorConditions& between(const QString& expression, const QDate& from, const QDate& to);
    /** The expression contains the text, ignoring case; an empty text matches every row. */
    KorConditions& contains(const QString& expression, const QString& text);
    KorConditions& contains(const QStringList& expressions, const QString& text);
    /** A LIKE pattern, used unchanged. */
    KorConditions& matches(const QStringList& expressions, const QString& pattern);
    /**
     * One of the conditions is true. Each pair is a condition that ends with its comparison operator, and its value.
     */
    KorConditions& anyOf(const KorPaging::Pairs& conditions);
    /** SQL without bound values, used unchanged: put an "or" in brackets. */
    KorConditions& holds(const QString& condition);

    // Optional filters: a value equal to "all", or an empty text, adds no condition.
    KorConditions& only(const QString& expression, int value, int all = KorNoValue);
    KorConditions& only(const QStringList& expressions, int value, int all = KorNoValue);
    KorConditions& only(const QString& expression, const QString& text);

    KorConditions& ascending(const QString& expression);
    KorConditions& descending(const QString& expression);
    /** Only so many of the rows that match; 0 means all. */
    KorConditions& atMost(int rows);

    /** Fills a paging for a mapper's find(); replaces its former conditions. */
    void fill(KorPaging& paging) const;

private:
    KorConditions& compare(const QStringList& expressions, const QString& comparison, const QVariant& value);
    KorConditions& sort(const QString& expression, const QString& direction);

    KorPaging::Pairs m_filters;
    KorPaging::Pairs m_sorts;
    int m_limit = 0;
    bool m_isSearch = false;
};
