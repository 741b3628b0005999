#include "pos/purchasing/document/PurchasingFilter.h"

#include "kor/persistence/KorDataMapper.h"
#include "kor/persistence/KorPaging.h"

void narrow(KorPaging& paging, const PurchasingFilter& filter, const PurchasingColumns& columns)
{
    const QString table = columns.table + '.';
    paging.addFilter(table + columns.date + " >= ", KorDataMapper::dateToSql(filter.from));
    paging.addFilter(" and " + table + columns.date + " <= ", KorDataMapper::dateToSql(filter.to));
    if (filter.kind != 0)
        paging.addFilter(" and " + table + columns.kind + " = ", QString::number(filter.kind));
    if (!filter.supplierCode.isEmpty())
        paging.addFilter(" and lower(supplier.kode) = ", filter.supplierCode.toLower());
    if (!filter.text.isEmpty()) {
        QString searched = "lower(supplier.kode)";
        // A number is compared as it was written: the capitals in front of it are never found, its digits are.
        if (filter.field == PurchasingFilter::DocumentNo)
            searched = table + columns.no;
        else if (filter.field == PurchasingFilter::OtherNo)
            searched = "lower(" + columns.otherNo + ')';
        paging.addFilter(" and " + searched + " like", '%' + filter.text.toLower() + '%');
    }
    paging.addSort(table + columns.date + " desc, " + table + "id", "desc");
}
