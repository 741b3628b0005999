#include "pos/masterdata/unit/DialogSatuan.h"

#include "kor/business/KorServiceDirectory.h"
#include "pos/masterdata/unit/BusinessSatuan.h"

#include "ui_DialogSatuan.h"

DialogSatuan::DialogSatuan(QWidget* parent) : KorDialog(parent), m_ui(std::make_unique<Ui::DialogSatuan>())
{
    m_ui->setupUi(this);
    edits<EntitySatuan>({{m_ui->lblSatuanID, "Id"}, {m_ui->txtKode, "Kode"}, {m_ui->txtNamaSatuan, "Nama"}});
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
