#include "zavel/dinein/DialogMakanDitempat.h"

#include "kor/business/KorServiceDirectory.h"
#include "zavel/dinein/EntityMakanDitempat.h"
#include "zavel/dinein/TabMakanDitempatDetail.h"
#include "zavel/tables/TableTextBox.h"

#include "zavel/order/ui_OrderDialog.h"

DialogMakanDitempat::DialogMakanDitempat(QWidget* parent, EntityMeja* table)
    : OrderDialog(new TabMakanDitempatDetail, parent)
{
    m_tableBox = new TableTextBox(ui().txtKode, service<BusinessMeja>("Table"));
    m_tableBox->setNextWidget(ui().txtMember);
    connect(m_tableBox, &TableTextBox::onItemSelected, this, &DialogMakanDitempat::onTableSelected);
    if (table)
        showTable(table);
    focusLater(table ? ui().txtNamaPelanggan : ui().txtKode);
}

void DialogMakanDitempat::onTableSelected()
{
    if (EntityMeja* table = m_tableBox->selectedItem())
        showTable(table);
}

void DialogMakanDitempat::showTable(EntityMeja* table)
{
    m_table = table;
    ui().txtKode->setText(table->getKode());
    ui().txtMeja->setText(table->getNama());
}

void DialogMakanDitempat::resolveTable()
{
    auto* tables = service<BusinessMeja>("Table");
    m_table = recordOfCode(ui().txtKode->text().trimmed(), m_table, tables);
    if (m_table)
        showTable(m_table);
    else
        addError(ui().txtKode, tables->hasError() ? tables->takeErrors() : tr("Please select a table"));
}

bool DialogMakanDitempat::validate()
{
    const EntityPoolScope scope(found());
    m_tableBox->preventSuggest();
    resolveTable();
    return OrderDialog::validate();
}

KorEntity* DialogMakanDitempat::getEntity()
{
    auto* order = heldOrNew<EntityMakanDitempat>();
    order->setMeja(m_formerTable);
    order->setPindahMeja(m_formerTrail);
    order->moveTo(m_table);
    writeTo(order);
    return order;
}

void DialogMakanDitempat::setEntity(KorEntity* entity)
{
    hold(entity);
    const auto* order = held<EntityMakanDitempat>();
    m_formerTable = order->getMeja();
    m_formerTrail = order->getPindahMeja();
    showTable(m_formerTable);
    showOrder(*order);
}

void DialogMakanDitempat::showOpenOrder(const EntityMakanDitempat& order)
{
    setOtherLines(order.getDetails());
    showGuest(order);
    for (QLineEdit* field : {ui().txtKode, ui().txtMember, ui().txtNamaPelanggan})
        field->setEnabled(false);
    onTabItemSelected();
}
