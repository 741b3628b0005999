#include "pos/inventory/balance/DialogStokAwal.h"

#include "pos/masterdata/item/EntityStokAwal.h"
#include "pos/masterdata/item/ItemField.h"

#include "ui_DialogStokAwal.h"

DialogStokAwal::DialogStokAwal(QWidget* parent) : KorDialog(parent), m_ui(std::make_unique<Ui::DialogStokAwal>())
{
    m_ui->setupUi(this);
    m_item = new ItemField(m_ui->txtKode, m_ui->txtNama, this);
    connect(m_item, &ItemField::chosen, this, &DialogStokAwal::onItemSelected);
    focusLater(m_ui->txtKode);
}

DialogStokAwal::~DialogStokAwal() = default;

bool DialogStokAwal::validate()
{
    m_item->check(tr("Enter the item code"), tr("Enter the item code"));
    if (!m_ui->txtHarga->isValid())
        addError(m_ui->txtHarga, tr("Enter the unit cost"));
    if (!m_ui->txtJumlah->isValid())
        addError(m_ui->txtJumlah, tr("Enter the qty of the item"));
    return !hasError();
}

KorEntity* DialogStokAwal::getEntity()
{
    auto* balance = heldOrNew<EntityStokAwal>();
    balance->setItem(m_item->record());
    balance->setHarga(m_ui->txtHarga->money());
    balance->setJumlah(m_ui->txtJumlah->quantity().value_or(0));
    return balance;
}

void DialogStokAwal::setEntity(KorEntity* entity)
{
    hold(entity);
    const auto* balance = held<EntityStokAwal>();
    m_item->show(balance->getItem());
    m_item->freeze();
    m_ui->txtHarga->setMoney(balance->getHarga());
    m_ui->txtJumlah->setValue(balance->getJumlah());
    focusLater(m_ui->txtJumlah);
}

void DialogStokAwal::onItemSelected()
{
    if (!m_item->record())
        return;
    m_ui->txtHarga->setMoney(m_item->record()->getHargaBeli());
    if (m_ui->txtKode->hasFocus())
        m_ui->txtHarga->setFocus(Qt::TabFocusReason);
}
