#pragma once

#include "kor/persistence/KorConditions.h"

/** The filter of a list of purchasing documents. Both dates are inclusive; 0 means every kind, "" any text. */
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

/** The table of a document, and its names for the columns of the filter. */
struct PurchasingColumns
{
    QString table;
    QString date;
    QString kind;
    QString no;
    /** The SQL expression of the supplier's own document number; empty if there is none. */
    QString otherNo;
};

/** Latest documents first. The table's supplier must be joined as "supplier". */
[[nodiscard]] KorConditions conditionsOf(const PurchasingFilter& filter, const PurchasingColumns& columns);
