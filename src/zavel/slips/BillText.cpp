#include "zavel/slips/BillText.h"

#include "pos/invoice/EntityInvoiceDetail.h"
#include "pos/invoice/Invoice.h"
#include "pos/masterdata/company/EntityDataPerusahaan.h"
#include "pos/printing/configuration/EntityConfigCashierPrinter.h"
#include "pos/printing/printer/SlipText.h"
#include "zavel/tables/EntityMeja.h"

#include <QCoreApplication>

namespace
{
struct BillLabels
{
    Q_DECLARE_TR_FUNCTIONS(BillText)

public:
    QString phone;
    QString subtotal;
    QString tax;
    QString discount;
    QString service;
    QString grandTotal;
    QString amountPaid;
    QString credit;

    static BillLabels dine()
    {
        return {"Telp : ",      tr("Sub total"),   tr("Tax"),         tr("Discount"),
                tr("Services"), tr("Grand Total"), tr("Amount Paid"), tr("Credit")};
    }
    static BillLabels fastFood()
    {
        BillLabels labels = dine();
        labels.phone = tr("Telp : ");
        return labels;
    }
    /** Always in Indonesian, because the guest takes this bill home. */
    static BillLabels takeAway()
    {
        return {"Telp : ", "Sub total", "Pajak", "Diskon", "Service", "Grand Total", "Tunai", "Kredit"};
    }
    static QString balance(bool isShort) { return isShort ? tr("Less ") : tr("Change "); }
};

QString amount(const Money* money) { return money ? money->toString() : QString("0"); }

QString summary(const QString& label, const QString& value)
{
    return SlipText::left(label, 13) + " :" + SlipText::right(value, 25);
}

QString billLine(const EntityInvoiceDetail& line)
{
    constexpr int nameWidth = 15;
    const QString name = line.getItem() ? line.getItem()->getNama() : QString();
    return SlipText::left(name.left(nameWidth), nameWidth) + "  " + SlipText::right(QString::number(line.getQty()), 5) +
           "  " + SlipText::right(amount(line.getPriceEach()), 6) + "  " + SlipText::right(amount(line.getTotal()), 8);
}

/** The amount paid minus the amount due: the guest's change, or the missing amount if negative. */
QString balanceLine(const Invoice& invoice)
{
    QObject scratch; // owns the values of the calculation
    const auto valueOf = [&scratch](const Money* money) {
        return money ? money->copy(&scratch) : new Money(&scratch, 0, QString());
    };
    Money* total = valueOf(invoice.getGrandTotal());
    const Money* balance = valueOf(invoice.getAmountPaid())->add(valueOf(invoice.getOtherPayment()))->subtract(total);
    return summary(BillLabels::balance(balance->rawAmount() < 0), balance->toStringAbs());
}

QString composeBill(const BillData& bill, const BillLabels& labels)
{
    const Invoice& invoice = *bill.invoice;
    SlipText slip(bill.printer->columns());
    addCompany(slip, *bill.company, labels.phone);
    slip.line("No.    : " + invoice.getInvoiceNo());
    slip.line("Cashier: " + bill.cashier);
    slip.line("Member : " + memberText(bill.member));
    slip.line("Guest  : " + bill.guest);
    if (bill.table)
        slip.line("Table  : " + bill.table->getNama());
    slip.line("Date   : " + invoice.getCreatedTime().toString(slipTimeFormat()));
    slip.separator();
    for (const EntityInvoiceDetail* line : bill.lines)
        slip.line(billLine(*line));
    slip.separator();
    slip.line(summary(labels.subtotal, amount(invoice.getSubtotal())));
    slip.line(summary(labels.tax, amount(invoice.getTax())));
    slip.line(summary(labels.discount, amount(invoice.getDiscount())));
    slip.line(summary(labels.service, amount(invoice.getService())));
    slip.separator();
    slip.line(summary(labels.grandTotal, amount(invoice.getGrandTotal())));
    slip.line(summary(labels.amountPaid, amount(invoice.getAmountPaid())));
    slip.line(summary(labels.credit, amount(invoice.getOtherPayment())));
    slip.line(balanceLine(invoice));
    slip.separator();
    if (!bill.printer->getNotes().isEmpty())
        slip.append(slip.centre(bill.printer->getNotes()));
    slip.lineFeeds(bill.printer->blankLines());
    return slip.text();
}
} // namespace

QString composeDineBill(const BillData& bill) { return composeBill(bill, BillLabels::dine()); }

QString composeFastFoodBill(const BillData& bill) { return composeBill(bill, BillLabels::fastFood()); }

QString composeTakeAwayBill(const BillData& bill) { return composeBill(bill, BillLabels::takeAway()); }

void addCompany(SlipText& slip, const EntityDataPerusahaan& company, const QString& phoneLabel)
{
    slip.centred(company.getNamaPerusahaan());
    const QStringList address = company.getAlamat().split('\n');
    for (const QString& line : address)
        slip.centred(line.trimmed());
    slip.centred(phoneLabel + company.getTelp());
    slip.line();
}

QString memberText(const EntityMember* member)
{
    return member ? member->getNama() + ' ' + member->getKode() : QString("-");
}
