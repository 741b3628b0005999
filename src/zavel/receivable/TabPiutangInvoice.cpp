#include "zavel/receivable/TabPiutangInvoice.h"

#include "zavel/receivable/DialogBayarPiutang.h"
#include "zavel/receivable/TableModelPiutangInvoice.h"

#include <QPushButton>

TabPiutangInvoice::TabPiutangInvoice(QWidget* parent) : PartPaymentsTab(parent)
{
    setWidths({160, 120, 170, 170});
    connect(addButton("btnPayAll", tr("Pay Invoice"), ":/icons/pay.png", "F2"), &QPushButton::clicked, this,
            &TabPiutangInvoice::on_btnPayAll_clicked);
    connect(addButton("pushButton", tr("Pay All Invoices"), ":/icons/finish.png", "F9"), &QPushButton::clicked, this,
            &TabPiutangInvoice::on_pushButton_clicked);
}

KorEntityModel* TabPiutangInvoice::createModel(const QList<KorEntity*>& lines)
{
    return new TableModelPiutangInvoice(lines, this);
}

std::unique_ptr<KorDialog> TabPiutangInvoice::createDialog() { return std::make_unique<DialogBayarPiutang>(this); }
