#include "shell/database/converter/PaymentStep.h"

#include "pos/masterdata/account/BusinessBank.h"
#include "pos/purchasing/payment/BusinessPayment.h"
#include "pos/purchasing/purchase/BusinessPurchases.h"

PaymentStep::PaymentStep(Conversion& run) : DocumentStep(run, run.services().payments) {}

KorEntity* PaymentStep::stored(const QString& no) { return run().services().payments->findByNo(no); }

void PaymentStep::convertNew(const LegacyRow& row, const QString& no)
{
    EntitySupplier* supplier = run().suppliers.find(row.text("kodemember"));
    if (!supplier) {
        run().skip(no, tr("there is no supplier \"%1\"").arg(row.text("kodemember")));
        return;
    }
    EntityPayment payment;
    payment.setNo(no);
    payment.setSupplier(supplier);
    payment.setDate(dateOr(row.date("tanggal"), QDate::currentDate()));
    payment.setPaymentType(row.text("kodetipebayar") == "Tunai" ? EntityPayment::CASH : EntityPayment::CHECK);
    payment.setBank(run().accounts.find(payment.getPaymentType() == EntityPayment::CASH ? "1010" : "1020"));
    payment.setCheckNo(row.text("nocek"));
    payment.setNoRef(row.text("norek"));
    if (row.number("saldohutang") != 0)
        payment.setNote(tr("Still owed to the supplier then: %1").arg(row.text("saldohutang")));
    const double sum = addLines(payment, row);
    // Skipped, so that a later run can convert it when its purchases exist. Written now, it would never pay anything.
    if (m_withoutPurchase > 0 && payment.invoices().getDetails().isEmpty()) {
        run().skip(no, tr("none of its purchases is there"));
        return;
    }
    const double total = row.number("jumlahbayar") != 0 ? row.number("jumlahbayar") : sum;
    payment.setGrandTotal(run().money(total));
    if (payment.getGrandTotal()->getAmount() != sum)
        run().mend(tr("its lines do not add up to what was paid"));
    save(payment, no, payment.invoices().getDetails().size());
}

double PaymentStep::addLines(EntityPayment& payment, const LegacyRow& row)
{
    double sum = 0;
    m_withoutPurchase = 0;
    const QList<LegacyRow> rows =
        run().source().lines("select * from tblbayarbelidetail where idbeli=?", row.value("idbeli"));
    for (const LegacyRow& lineRow : rows) {
        const QString purchaseNo = lineRow.text("nonota");
        const QString key = payment.getNo() + '/' + purchaseNo;
        if (!takesLine(lineRow, key))
            continue;
        BusinessPurchases* purchases = run().services().purchases;
        EntityAcquisition* purchase = purchases->findByNo(Conversion::fitted(purchaseNo, *purchases, "No"));
        if (!purchase) {
            ++m_withoutPurchase;
            run().lines().skip(key, tr("there is no such purchase"));
            continue;
        }
        auto* line = new EntityPaymentInvoices(AppDataMapper::entityParent());
        line->setAcquisition(purchase);
        line->setAmountPaid(run().money(lineRow.number("jumlah")));
        line->setAmountDue(run().money(lineRow.number("sisa")));
        payment.invoices().addDetail(line);
        sum += line->getAmountPaid()->getAmount();
    }
    return sum;
}
