#include "zavel/tables/DialogMeja.h"

#include "kor/business/KorServiceDirectory.h"
#include "zavel/tables/BusinessMeja.h"

#include "ui_DialogMeja.h"

DialogMeja::DialogMeja(QWidget* parent) : KorDialog(parent), m_ui(std::make_unique<Ui::DialogMeja>())
{
    m_ui->setupUi(this);
    focusLater(m_ui->txtKode);
}

DialogMeja::~DialogMeja() = default;

bool DialogMeja::validate()
{
    requireCode(
        m_ui->txtKode, service<BusinessMeja>("Table"),
        [](BusinessMeja* tables, const QString& code) { return tables->findByCode(code); }, tr("Enter the table code"),
        tr("This table code is already in use please use another code"));
    require(m_ui->txtNama, tr("Enter the table name"));
    return !hasError();
}

KorEntity* DialogMeja::getEntity()
{
    auto* table = heldOrNew<EntityMeja>();
    table->setKode(m_ui->txtKode->text());
    table->setNama(m_ui->txtNama->text());
    return table;
}

void DialogMeja::setEntity(KorEntity* entity)
{
    hold(entity);
    const auto* table = held<EntityMeja>();
    m_ui->lblMejaID->setText(QString::number(table->getId()));
    m_ui->txtKode->setText(table->getKode());
    m_ui->txtNama->setText(table->getNama());
}
