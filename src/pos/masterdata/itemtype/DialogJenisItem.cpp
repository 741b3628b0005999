#include "pos/masterdata/itemtype/DialogJenisItem.h"

#include "kor/business/KorServiceDirectory.h"
#include "pos/masterdata/itemtype/BusinessJenisItem.h"

#include "ui_DialogJenisItem.h"

DialogJenisItem::DialogJenisItem(QWidget* parent) : KorDialog(parent), m_ui(std::make_unique<Ui::DialogJenisItem>())
{
    m_ui->setupUi(this);
    edits<EntityJenisItem>({{m_ui->lblJenisItemID, "Id"}, {m_ui->txtKode, "Kode"}, {m_ui->txtNamaJenis, "Nama"}});
    focusLater(m_ui->txtKode);
}

DialogJenisItem::~DialogJenisItem() = default;

bool DialogJenisItem::validate()
{
    requireCode(
        m_ui->txtKode, service<BusinessJenisItem>("Item Type"),
        [](BusinessJenisItem* types, const QString& code) { return types->findByCode(code); }, tr("Enter the code"),
        tr("This code is already in use please use another code"));
    require(m_ui->txtNamaJenis, tr("Enter the name"));
    return !hasError();
}
