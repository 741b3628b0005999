#include "zavel/dinein/TabBayarMakanDitempatDetail.h"

#include "pos/invoice/EntityInvoiceDetail.h"
#include "zavel/dinein/DialogBayarMakanDitempatDetailSplit.h"
#include "zavel/dinein/TableModelBayarMakanDitempatDetail.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QPushButton>

#include <algorithm>

TabBayarMakanDitempatDetail::TabBayarMakanDitempatDetail(QWidget* parent)
    : InvoiceLinesTab(parent), m_showSplit(new QCheckBox(tr("Pay apart"), this))
{
    m_showSplit->setObjectName("cbShowSplit");
    m_showSplit->setToolTip(tr("Split this invoice among the guests"));
    m_showSplit->setMinimumHeight(40);
    footer()->addStretch();
    footer()->addWidget(m_showSplit);
    connect(m_showSplit, &QCheckBox::clicked, this, &TabBayarMakanDitempatDetail::on_cbShowSplit_clicked);
    connect(addButton("btnSplit", tr("Split"), tr("Take a quantity off the selected lines")), &QPushButton::clicked,
            this, &TabBayarMakanDitempatDetail::on_btnSplit_clicked);
    connect(addButton("btnDelSplit", tr("Remove Split"), tr("Put back what was taken off the selected lines")),
            &QPushButton::clicked, this, &TabBayarMakanDitempatDetail::on_btnDelSplit_clicked);
    connect(addButton("btnProcessSplit", tr("Process Split"), tr("Save, and take the money of each group")),
            &QPushButton::clicked, this, &TabBayarMakanDitempatDetail::on_btnProcessSplit_clicked);
    refresh();
}

QPushButton* TabBayarMakanDitempatDetail::addButton(const QString& name, const QString& text, const QString& hint)
{
    auto* button = new QPushButton(text, this);
    button->setObjectName(name);
    button->setToolTip(hint);
    button->setMinimumSize(124, 40);
    button->setAutoDefault(false);
    button->hide();
    footer()->addWidget(button);
    m_buttons.append(button);
    return button;
}

InvoiceLinesModel* TabBayarMakanDitempatDetail::createModel(const QList<KorEntity*>& lines)
{
    return new TableModelBayarMakanDitempatDetail(lines, m_showSplit->isChecked(), this);
}

QList<int> TabBayarMakanDitempatDetail::columnWidths() const
{
    return m_showSplit->isChecked() ? QList<int>{90, 230, 60, 70, 120, 100, 140} : InvoiceLinesTab::columnWidths();
}

bool TabBayarMakanDitempatDetail::hasPendingSplit() const
{
    return std::any_of(details().cbegin(), details().cend(),
                       [](const EntityInvoiceDetail* line) { return line->qtySplit() > 0; });
}

void TabBayarMakanDitempatDetail::showSplit()
{
    m_showSplit->setChecked(true);
    on_cbShowSplit_clicked();
}

void TabBayarMakanDitempatDetail::on_cbShowSplit_clicked()
{
    for (QPushButton* button : qAsConst(m_buttons))
        button->setVisible(m_showSplit->isChecked());
    refresh();
}

void TabBayarMakanDitempatDetail::on_btnSplit_clicked()
{
    const QList<EntityInvoiceDetail*> lines = selectedLines();
    for (EntityInvoiceDetail* line : lines) {
        if (!splitLine(line))
            break;
        refresh();
    }
    focusGrid();
}

bool TabBayarMakanDitempatDetail::splitLine(EntityInvoiceDetail* line)
{
    DialogBayarMakanDitempatDetailSplit dialog(this);
    dialog.setEntity(line);
    if (dialog.exec() != QDialog::Accepted)
        return false;
    dialog.getEntity();
    return true;
}

void TabBayarMakanDitempatDetail::on_btnDelSplit_clicked()
{
    const QList<EntityInvoiceDetail*> lines = selectedLines();
    for (EntityInvoiceDetail* line : lines) {
        line->setQtySplit(0);
        line->setSplitGroup({});
    }
    refresh();
    focusGrid();
}

void TabBayarMakanDitempatDetail::on_btnProcessSplit_clicked() { emit SplitInvoice(); }
