#include "sales/receivable/TabPiutangInvoice.h"

#include "sales/receivable/AmountLeft.h"
#include "sales/receivable/DialogBayarPiutang.h"
#include "sales/receivable/EntityPiutangDetail.h"
#include "sales/receivable/TableModelPiutangInvoice.h"

#include <QPushButton>

TabPiutangInvoice::TabPiutangInvoice(QWidget* parent) : SettlementTab("tblInvoice", parent)
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

void TabPiutangInvoice::on_pushButton_clicked()
{
    for (KorEntity* entity : lines()) {
        auto* line = static_cast<EntityPiutangDetail*>(entity);
        const Money* due = line->getAmountDue();
        // On top of a part that was entered before, which must not get lost.
        if (due->rawAmount() <= 0)
            continue;
        const double paid = double(line->getAmountPaid()->rawAmount()) + due->rawAmount();
        line->setAmountPaid(minorUnits(paid, due->getCurrency()).get());
        line->setAmountDue(minorUnits(0, due->getCurrency()).get());
    }
    linesChanged();
}

void TabPiutangInvoice::on_btnPayAll_clicked()
{
    const QList<KorEntity*> selected = selectedLines();
    for (KorEntity* line : selected) {
        DialogBayarPiutang dialog(this);
        dialog.setEntity(line);
        if (dialog.exec() != QDialog::Accepted)
            break;
        dialog.getEntity();
        linesChanged();
    }
    focusGrid();
}
