#include "pos/masterdata/unit/DialogSatuan.h"

#include "kor/business/KorServiceDirectory.h"
#include "pos/masterdata/unit/BusinessSatuan.h"

#include "ui_DialogSatuan.h"

DialogSatuan::DialogSatuan(QWidget* parent) : KorDialog(parent), m_ui(std::make_unique<Ui::DialogSatuan>())
{
    m_ui->setupUi(this);
    focusLater(m_ui->txtNamaSatuan);
}

DialogSatuan::~DialogSatuan() = default;

bool DialogSatuan::validate()
{
    require(m_ui->txtNamaSatuan, tr("Enter the unit name"));
    requireCode(
        m_ui->txtKode, service<BusinessSatuan>("Unit"),
        [](BusinessSatuan* units, const QString& code) { return units->findByCode(code); }, tr("Enter the unit code"),
        tr("This unit code is already in use please use another code"));
    return !hasError();
}

KorEntity* DialogSatuan::getEntity()
{
    auto* unit = heldOrNew<EntitySatuan>();
    unit->setKode(m_ui->txtKode->text());
    unit->setNama(m_ui->txtNamaSatuan->text());
    return unit;
}

void DialogSatuan::setEntity(KorEntity* entity)
{
    hold(entity);
    const auto* unit = held<EntitySatuan>();
    m_ui->lblSatuanID->setText(QString::number(unit->getId()));
    m_ui->txtKode->setText(unit->getKode());
    m_ui->txtNamaSatuan->setText(unit->getNama());
}
