#include "pos/inventory/balance/DialogStokAwal.h"

#include "pos/masterdata/item/EntityStokAwal.h"
#include "pos/masterdata/item/ItemField.h"

#include "ui_DialogStokAwal.h"

DialogStokAwal::DialogStokAwal(QWidget* parent) : KorDialog(parent), m_ui(std::make_unique<Ui::DialogStokAwal>())
{
    m_ui->setupUi(this);
    m_item = new ItemField(m_ui->txtKode, m_ui->txtNama, this);
    connect(m_item, &ItemField::chosen, this, &DialogStokAwal::onItemSelected);
    edits<EntityStokAwal>({{m_item, "Item"}, {m_ui->txtHarga, "Harga"}, {m_ui->txtJumlah, "Jumlah"}});
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

void DialogStokAwal::setEntity(KorEntity* entity)
{
    KorDialog::setEntity(entity);
    m_item->freeze();
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
