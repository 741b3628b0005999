#include "pos/inventory/balance/TableModelStokAwal.h"

#include "app/context/AppContext.h"
#include "pos/masterdata/item/EntityStokAwal.h"

namespace
{
/** Not Money: the value of a whole storeroom may exceed what Money can hold. */
QString totalCost(const EntityStokAwal& balance, const QLocale& locale)
{
    const Money* cost = balance.getHarga();
    return cost ? locale.toCurrencyString(cost->getAmount() * balance.getJumlah(), cost->getCurrency()) : QString();
}
} // namespace

TableModelStokAwal::TableModelStokAwal(const QList<KorEntity*>& balances, QObject* parent)
    : AppEntityModel(balances, parent)
{
    using Balance = EntityStokAwal;
    addField<Balance>(QMetaType::QString, tr("Code"), [](const Balance& row) { return row.getItem()->getKode(); });
    addField<Balance>(QMetaType::QString, tr("Name"), [](const Balance& row) { return row.getItem()->getNama(); });
    addField<Balance>(
        QMetaType::Int, tr("Qty"), [](const Balance& row) { return row.getJumlah(); }, RightAligned);
    addField<Balance>(QMetaType::QString, tr("Unit"), [](const Balance& row) {
        const EntitySatuan* unit = row.getItem()->getSatuan();
        return unit ? unit->getNama() : QString();
    });
    addMoney<Balance>(tr("Unit Cost"), [](const Balance& row) { return row.getHarga(); });
    const QLocale locale(AppContext::instance()->locale());
    addField<Balance>(
        moneyType(), tr("Total Cost"), [locale](const Balance& row) { return totalCost(row, locale); }, RightAligned);
}
