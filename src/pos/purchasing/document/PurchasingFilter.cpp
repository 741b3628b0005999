#include "pos/purchasing/document/PurchasingFilter.h"

KorConditions conditionsOf(const PurchasingFilter& filter, const PurchasingColumns& columns)
{
    const QString table = columns.table + '.';
    QString searched = "lower(supplier.kode)";
    // A document number is compared case-sensitively with the lower-case text: its capital letters are never found,
    // digits are.
    if (filter.field == PurchasingFilter::DocumentNo)
        searched = table + columns.no;
    else if (filter.field == PurchasingFilter::OtherNo)
        searched = "lower(" + columns.otherNo + ')';
    return KorConditions()
        .between(table + columns.date, filter.from, filter.to)
        .only(table + columns.kind, filter.kind, 0)
        .only("lower(supplier.kode)", filter.supplierCode.toLower())
        .contains(searched, filter.text)
        .descending(table + columns.date)
        .descending(table + "id");
}
