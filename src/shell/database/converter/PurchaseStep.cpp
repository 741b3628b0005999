#include "shell/database/converter/PurchaseStep.h"

#include "pos/masterdata/account/BusinessBank.h"
#include "pos/purchasing/purchase/BusinessPurchases.h"
#include "pos/purchasing/purchaseorder/BusinessPurchaseOrder.h"
#include "pos/purchasing/purchaseorder/EntityPurchaseOrder.h"

#include <algorithm>

namespace
{
// The former system stores a discount or tax as one number: up to 100 it is a percentage, above that an amount.
constexpr double largestPercentage = 100;

bool isPercentage(double number) { return number > 0 && number <= largestPercentage; }

double share(double part, double whole) { return whole > 0 ? qRound64(part * 100000 / whole) / 1000.0 : 0; }
} // namespace

PurchaseStep::PurchaseStep(Conversion& run) : DocumentStep(run, run.services().purchases) {}

void PurchaseStep::begin()
{
    // If this fails, the payment step will report the error.
    const bool done = run().source().read("select * from tblbayarbelidetail", [this](const LegacyRow& row) {
        if (!row.flag("cekhapus"))
            m_paidLater[row.text("nonota")] += row.number("jumlah");
        return true;
    });
    if (!done)
        m_paidLater.clear();
}

KorEntity* PurchaseStep::stored(const QString& no) { return run().services().purchases->findByNo(no); }

EntityPurchaseOrder* PurchaseStep::orderOf(const LegacyRow& row)
{
    const QString no = row.text("noporder");
    if (no.isEmpty())
        return nullptr;
    BusinessPurchaseOrder* orders = run().services().orders;
    if (const EntityPurchaseOrder* header = orders->findByNo(no))
        return static_cast<EntityPurchaseOrder*>(orders->find(header->getId()));
    Conversion::log("can not find PO no: " + no);
    run().mend(tr("the purchase order %1 was not found").arg(no));
    return nullptr;
}

void PurchaseStep::convertNew(const LegacyRow& row, const QString& no)
{
    EntitySupplier* supplier = run().suppliers.find(row.text("kodesupplier"));
    if (!supplier) {
        run().skip(no, tr("there is no supplier \"%1\"").arg(row.text("kodesupplier")));
        return;
    }
    EntityAcquisition purchase;
    purchase.setNo(no);
    purchase.setSupplier(supplier);
    purchase.setBank(run().accounts.find("2000"));
    const QDate due = row.date("jtempo");
    purchase.setPurchaseDate(dateOr(row.date("tanggal"), due.isValid() ? due : QDate::currentDate()));
    purchase.setDueDate(due.isValid() ? due : purchase.getPurchaseDate());
    purchase.setInvoiceNo(row.text("nosup"));
    QStringList notes;
    const QList<QPair<QString, QString>> kept{
        {tr("Reference: %1"), "noreff"}, {tr("Bank: %1"), "bank"}, {tr("Account No.: %1"), "norekening"}};
    for (const auto& note : kept) {
        if (!row.text(note.second).isEmpty())
            notes.append(note.first.arg(row.text(note.second)));
    }
    purchase.setNote(notes.join('\n'));
    const EntityPurchaseOrder* order = orderOf(row);
    purchase.setIsApplyToPurchaseOrder(order);
    purchase.setPurchaseOrderId(order ? order->getId() : KorNoValue);
    addLines(purchase, row, order);
    setTotals(purchase, row);
    setPaid(purchase, row);
    if (row.text("status") == "Lunas")
        purchase.setStatus(EntityAcquisition::FULL_PAID);
    save(purchase, no, purchase.getDetails().size());
}

void PurchaseStep::addLines(EntityAcquisition& purchase, const LegacyRow& row, const EntityPurchaseOrder* order)
{
    QList<LegacyRow> rows = run().source().lines("select * from tblbelidetail where nonota=?", row.value("nonota"));
    std::stable_sort(rows.begin(), rows.end(), [](const LegacyRow& one, const LegacyRow& other) {
        return one.number("nomorbaris") < other.number("nomorbaris");
    });
    for (const LegacyRow& lineRow : qAsConst(rows)) {
        const QString code = lineRow.firstText({"kodebrg", "kodebarang", "kode", "barkode"});
        const QString key = purchase.getNo() + '/' + (code.isEmpty() ? lineRow.text("nomorbaris") : code);
        if (!takesLine(lineRow, key))
            continue;
        EntityItem* item = run().items.find(code);
        if (!item) {
            run().lines().skip(key, tr("there is no such item"));
            continue;
        }
        EntityAcquisitionDetail* detail = line(lineRow, item);
        const auto ordered = order ? order->getDetails() : QList<EntityPurchaseOrderDetail*>();
        for (const EntityPurchaseOrderDetail* wanted : ordered) {
            if (wanted->itemId() == item->getId()) {
                detail->setQtyOrdered(wanted->quantity());
                detail->setPurchaseOrderDetailId(wanted->getId());
            }
        }
        purchase.addDetail(detail);
    }
}

EntityAcquisitionDetail* PurchaseStep::line(const LegacyRow& row, EntityItem* item)
{
    auto* detail = new EntityAcquisitionDetail(AppDataMapper::entityParent());
    const double price = row.firstNumber({"hargabeli", "tmphargabeli"});
    const double gross = row.number("jumlah") * price;
    const double discount = row.number("diskon");
    const double amount = isPercentage(discount) ? gross * discount / 100 : discount;
    detail->setItem(item);
    detail->setQty(run().whole(row.number("jumlah")));
    detail->setPriceEach(run().money(price));
    detail->setDiscount(run().money(amount));
    detail->setDiscountPercentage(isPercentage(discount) ? discount : share(discount, gross));
    detail->setTotalPrice(run().money(gross - amount));
    return detail;
}

void PurchaseStep::setTotals(EntityAcquisition& purchase, const LegacyRow& row)
{
    double lines = 0;
    for (const EntityAcquisitionDetail* detail : purchase.getDetails())
        lines += detail->getTotalPrice()->getAmount();
    static const QStringList untaxed{"0", "f", "false", "n", "no", "tidak", "non", "non pkp"};
    const double tax = untaxed.contains(row.text("stpajak").toLower()) ? 0 : row.number("pajak");
    const double rate = isPercentage(tax) ? tax / 100 : 0;
    const double taxAmount = isPercentage(tax) ? 0 : tax;

    // The stored total is what was owed; the sub total is calculated from it, as the purchase form does.
    const double discount = run().money(row.number("totaldiskon"))->getAmount();
    const double total = row.isNull("total") ? lines * (1 + rate) + taxAmount - discount : row.number("total");
    purchase.setGrandTotal(run().money(total));
    purchase.setTax(run().money(rate > 0 ? (total + discount) / (1 + rate) * rate : taxAmount));
    purchase.setDiscount(run().money(discount));
    const double whole = purchase.getGrandTotal()->getAmount();
    const double subTotal = whole - purchase.getTax()->getAmount() + discount;
    purchase.setSubtotal(run().money(subTotal));
    purchase.setDiscountPercentage(share(discount, subTotal));
    purchase.setTaxPercentage(rate > 0 ? tax : share(taxAmount, subTotal));
    if (subTotal != lines)
        run().mend(tr("the lines do not add up to the sub total"));
}

void PurchaseStep::setPaid(EntityAcquisition& purchase, const LegacyRow& row)
{
    const double total = purchase.getGrandTotal()->getAmount();
    double due =
        row.isNull("sisa") ? qMax(0.0, total - row.number("tunai") - row.number("deposit")) : row.number("sisa");
    if (row.text("status") == "Lunas")
        due = 0;
    const double later = run().money(m_paidLater.value(row.text("nonota")))->getAmount();
    const double paid = qMax(0.0, total - run().money(due)->getAmount() - later);
    purchase.setAmountPaid(run().money(paid));
    purchase.setOtherPayment(run().money(later));
    purchase.setNetDue(run().money(total - paid - later));
}
