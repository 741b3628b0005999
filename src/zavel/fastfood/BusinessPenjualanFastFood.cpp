#include "zavel/fastfood/DataMapperInvoiceFastFood.h"
#include "zavel/fastfood/EntityInvoiceFastFood.h"
#include "zavel/service/BusinessPenjualan.h"

// Sales over the counter.

EntityInvoiceFastFood* BusinessPenjualan::findInvoiceFastFood(int id)
{
    return static_cast<EntityInvoiceFastFood*>(
        read(m_mappers.fastFoodInvoices->findById(id), m_mappers.fastFoodInvoices, "find"));
}

EntityInvoiceFastFood* BusinessPenjualan::findFastFoodByInvoiceId(int invoiceId)
{
    return static_cast<EntityInvoiceFastFood*>(
        read(m_mappers.fastFoodInvoices->findByInvoiceId(invoiceId), m_mappers.fastFoodInvoices, "find"));
}

QList<EntityInvoiceFastFood*> BusinessPenjualan::getFastFoodList(const FastFoodFilter& filter)
{
    return read(m_mappers.fastFoodInvoices->getFastFoodList(filter), m_mappers.fastFoodInvoices, "getFastFoodList");
}
