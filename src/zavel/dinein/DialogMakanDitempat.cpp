#include "zavel/dinein/DialogMakanDitempat.h"

#include "app/widgets/RecordField.h"
#include "kor/business/KorServiceDirectory.h"
#include "zavel/dinein/EntityMakanDitempat.h"
#include "zavel/dinein/TabMakanDitempatDetail.h"
#include "zavel/tables/TableTextBox.h"

#include "zavel/order/ui_OrderDialog.h"

DialogMakanDitempat::DialogMakanDitempat(QWidget* parent, EntityMeja* table)
    : OrderDialog(new TabMakanDitempatDetail, parent)
{
    auto* tables = new TableTextBox(ui().txtKode, service<BusinessMeja>("Table"));
    tables->setNextWidget(ui().txtMember);
    m_table = new RecordField<EntityMeja>(tables, nullptr, this);
    connect(m_table, &RecordFieldBase::changed, this, &DialogMakanDitempat::onTableSelected);
    m_table->show(table);
    focusLater(table ? ui().txtNamaPelanggan : ui().txtKode);
}

void DialogMakanDitempat::onTableSelected()
{
    const EntityMeja* table = m_table->record();
    ui().txtMeja->setText(table ? table->getNama() : QString());
}

bool DialogMakanDitempat::validate()
{
    m_table->check(tr("Please select a table"), tr("Please select a table"));
    return OrderDialog::validate();
}

KorEntity* DialogMakanDitempat::getEntity()
{
    auto* order = heldOrNew<EntityMakanDitempat>();
    order->setMeja(m_formerTable);
    order->setPindahMeja(m_formerTrail);
    order->moveTo(m_table->record());
    writeTo(order);
    return order;
}

void DialogMakanDitempat::setEntity(KorEntity* entity)
{
    hold(entity);
    const auto* order = held<EntityMakanDitempat>();
    m_formerTable = order->getMeja();
    m_formerTrail = order->getPindahMeja();
    m_table->show(m_formerTable);
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
