// The sums behind the dashboard and the reports.
#include "zavel/list/DataMapperPenjualanInfo.h"
#include "zavel/list/EntitySalesSummaryInfo.h"
#include "zavel/list/EntitySoldItem.h"

#include <cmath>

namespace
{
const char* const salesSums =
    "count(*) as noTrans, SUM(invoice.grandtotal_amount) as totalTrans, "
    " sum(amount_paid_amount-GREATEST(amount_paid_amount-grandtotal_amount,0)) as totalCash,  "
    " sum(other_payment_amount) as totalCredit   from invoice  where invoice_date between :startdate  and :enddate";

const char* const soldItems = "Select item.kode, item.nama, jenis_item.kode as item_type, sum(qty) as total_qty, "
                              "sum(total_amount) as total_price  from invoice  "
                              "inner join invoice_detail on invoice.id = invoice_detail.invoice_id  "
                              "inner join item on item.id = invoice_detail.item_id  "
                              "inner join jenis_item on jenis_item.id = item.jenis  "
                              "where invoice_date between :startdate  and :enddate";

qint64 whole(KorQuery& query, const QString& column) { return std::llround(query.field(column).toDouble()); }
} // namespace

QList<EntitySalesSummaryInfo*> DataMapperPenjualanInfo::getDailySales(const QDate& from, const QDate& to, int userId)
{
    return salesBy("invoice_date", "invoice_date", from, to, userId);
}

QList<EntitySalesSummaryInfo*> DataMapperPenjualanInfo::getMonthlySales(const QDate& from, const QDate& to, int userId)
{
    return salesBy("date_trunc('month',invoice_date)", "month", from, to, userId);
}

QList<EntitySalesSummaryInfo*> DataMapperPenjualanInfo::salesBy(const QString& period, const QString& name,
                                                                const QDate& from, const QDate& to, int userId)
{
    const bool ofOneUser = userId != -1;
    const QString statement = QString("Select %1 as %2, ").arg(period, name) + salesSums +
                              (ofOneUser ? " and createdby = :user" : "") +
                              QString(" group by %1 order by %2").arg(period, name);
    Bindings values{{":startdate", dateToSql(from)}, {":enddate", dateToSql(to)}};
    if (ofOneUser)
        values.append({":user", userId});
    KorQuery query;
    const bool read = executePlanned(query, statement, values);
    QList<EntitySalesSummaryInfo*> result;
    while (read && query.next()) {
        auto* sum = new EntitySalesSummaryInfo(entityParent());
        sum->setDate(query.field(name).toDate());
        sum->setSalesCount(whole(query, "noTrans"));
        sum->setTotal(whole(query, "totalTrans"));
        sum->setCash(whole(query, "totalCash"));
        sum->setCredit(whole(query, "totalCredit"));
        result.append(sum);
    }
    return result;
}

QList<EntitySoldItem*> DataMapperPenjualanInfo::getSoldItems(const QDate& from, const QDate& to,
                                                             const QString& direction, const QString& sortColumn,
                                                             const QString& itemType)
{
    // Column and direction cannot be bound as values, so only these words may enter the statement.
    static const QStringList columns{"kode", "nama", "item_type", "total_qty", "total_price"};
    static const QStringList directions{"asc", "desc"};
    const QString column = sortColumn.toLower();
    const QString order = direction.toLower();
    if (!columns.contains(column) || !directions.contains(order)) {
        setError(tr("The items can not be sorted by: %1 %2").arg(sortColumn, direction));
        return {};
    }
    const bool ofOneType = !itemType.isEmpty();
    // Items with equal values are sorted by code, so that the order is always the same.
    const QString statement = soldItems + QString(ofOneType ? " and jenis_item.kode = :itemType " : "") +
                              " group by item.id,jenis_item.kode order by  " + column + ' ' + order + ", item.kode";
    Bindings values{{":startdate", dateToSql(from)}, {":enddate", dateToSql(to)}};
    if (ofOneType)
        values.append({":itemType", itemType});
    KorQuery query;
    const bool read = executePlanned(query, statement, values);
    QList<EntitySoldItem*> result;
    while (read && query.next()) {
        auto* item = new EntitySoldItem(entityParent());
        item->setKode(query.field("kode").toString());
        item->setNama(query.field("nama").toString());
        item->setItemType(query.field("item_type").toString());
        item->setTotalQty(whole(query, "total_qty"));
        item->setTotalPrice(whole(query, "total_price"));
        result.append(item);
    }
    return result;
}
