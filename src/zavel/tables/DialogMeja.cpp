#include "zavel/tables/DialogMeja.h"

#include "kor/business/KorServiceDirectory.h"
#include "zavel/tables/BusinessMeja.h"

#include "ui_DialogMeja.h"

DialogMeja::DialogMeja(QWidget* parent) : KorDialog(parent), m_ui(std::make_unique<Ui::DialogMeja>())
{
    m_ui->setupUi(this);
    edits<EntityMeja>({{m_ui->lblMejaID, "Id"}, {m_ui->txtKode, "Kode"}, {m_ui->txtNama, "Nama"}});
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
