#include "zavel/dinein/DialogSelectSplitInvoice.h"

#include "zavel/dinein/TabSelectSplitInvoice.h"

#include <QDialogButtonBox>
#include <QPushButton>
#include <QTabWidget>
#include <QVBoxLayout>

DialogSelectSplitInvoice::DialogSelectSplitInvoice(const QList<EntityInvoiceMakanDitempat*>& invoices, QWidget* parent)
    : QDialog(parent), m_invoices(new TabSelectSplitInvoice(invoices))
{
    setWindowTitle(tr("Select an Invoice"));
    resize(960, 380);
    auto* tabs = new QTabWidget(this);
    tabs->addTab(m_invoices, tr("Invoices"));
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    for (QAbstractButton* button : buttons->buttons())
        button->setMinimumSize(110, 40);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(tabs);
    layout->addWidget(buttons);
    connect(buttons, &QDialogButtonBox::accepted, this, &DialogSelectSplitInvoice::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &DialogSelectSplitInvoice::reject);
    connect(m_invoices, &TabSelectSplitInvoice::chosen, this, &DialogSelectSplitInvoice::accept);
    m_invoices->setFocus();
}

EntityInvoiceMakanDitempat* DialogSelectSplitInvoice::selectedInvoice() const { return m_invoices->selectedInvoice(); }

void DialogSelectSplitInvoice::accept()
{
    // Stays open until an invoice is selected.
    if (selectedInvoice())
        QDialog::accept();
}
