#pragma once

#include "kor/entity/KorEntity.h"
#include "kor/persistence/KorPaging.h"

#include <QDate>
#include <QVariant>

/**
 * The rows that a list or finder wants, and their order. Each call narrows the rows further. An expression is a piece
 * of SQL (a column, "lower(no)"), of several one has to match; a value is bound and never stands in the statement.
 */
class KorConditions
{
public:
    KorConditions& equals(const QString& expression, const QVariant& value);
    KorConditions& equals(const QStringList& expressions, const QVariant& value);
    KorConditions& differs(const QString& expression, const QVariant& value);
    KorConditions& oneOf(const QString& expression, const QList<int>& ids);
    /** Both dates count; one that is not given sets no limit. */
    KorConditions& between(const QString& expression, const QDate& from, const QDate& to);
    /** The text stands somewhere in it, searched in lower case; an empty one stands in everything. */
    KorConditions& contains(const QString& expression, const QString& text);
    KorConditions& contains(const QStringList& expressions, const QString& text);
    /** A pattern of LIKE, as it is. */
    KorConditions& matches(const QStringList& expressions, const QString& pattern);
    /** One of them holds, each a condition that ends with its comparison, and its value. */
    KorConditions& anyOf(const KorPaging::Pairs& conditions);
    /** A condition without bound values, as it is written: an "or" in it needs brackets around it. */
    KorConditions& holds(const QString& condition);

    // What a filter may leave open: the value that stands for all rows, and an empty text, add no condition.
    KorConditions& only(const QString& expression, int value, int all = KorNoValue);
    KorConditions& only(const QStringList& expressions, int value, int all = KorNoValue);
    KorConditions& only(const QString& expression, const QString& text);

    KorConditions& ascending(const QString& expression);
    KorConditions& descending(const QString& expression);

    /** As a mapper's find() takes them; what the paging asked for before is forgotten. */
    void fill(KorPaging& paging) const;

private:
    KorConditions& compare(const QStringList& expressions, const QString& comparison, const QVariant& value);
    KorConditions& sort(const QString& expression, const QString& direction);

    KorPaging::Pairs m_filters;
    KorPaging::Pairs m_sorts;
};
