// Figures by day, by month and by item.
#include "zavel/list/DataMapperPenjualanInfo.h"
#include "zavel/service/BusinessPenjualan.h"

QList<EntitySalesSummaryInfo*> BusinessPenjualan::getDailySales(const QDate& from, const QDate& to, int userId)
{
    return read(m_mappers.salesList->getDailySales(from, to, userId), m_mappers.salesList, "getDailySales");
}

QList<EntitySalesSummaryInfo*> BusinessPenjualan::getMonthlySales(const QDate& from, const QDate& to, int userId)
{
    return read(m_mappers.salesList->getMonthlySales(from, to, userId), m_mappers.salesList, "getMonthlySales");
}

QList<EntitySoldItem*> BusinessPenjualan::getSoldItems(const QDate& from, const QDate& to, const QString& direction,
                                                       const QString& sortColumn, const QString& itemType)
{
    return read(m_mappers.salesList->getSoldItems(from, to, direction, sortColumn, itemType), m_mappers.salesList,
                "getSoldItems");
}
