#pragma once

#include "kor/persistence/KorConditions.h"

/** What a list of purchasing documents is narrowed to. Both dates count; 0 stands for every kind, "" for any text. */
struct PurchasingFilter
{
    enum Field { DocumentNo, SupplierCode, OtherNo };

    QDate from;
    QDate to;
    /** The status, or the type of a payment. */
    int kind = 0;
    QString supplierCode;
    Field field = DocumentNo;
    QString text;
};

/** A family's table, and what it calls the columns of the filter. */
struct PurchasingColumns
{
    QString table;
    QString date;
    QString kind;
    QString no;
    /** The supplier's own number of the document, as an expression; empty where the family has none. */
    QString otherNo;
};

/** The latest documents first. The table's supplier is joined as "supplier". */
[[nodiscard]] KorConditions conditionsOf(const PurchasingFilter& filter, const PurchasingColumns& columns);
