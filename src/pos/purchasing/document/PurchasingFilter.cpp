#include "pos/purchasing/document/PurchasingFilter.h"

KorConditions conditionsOf(const PurchasingFilter& filter, const PurchasingColumns& columns)
{
    const QString table = columns.table + '.';
    QString searched = "lower(supplier.kode)";
    // A number is compared as it was written: the capitals in front of it are never found, its digits are.
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
