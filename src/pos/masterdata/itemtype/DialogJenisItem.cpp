#include "pos/masterdata/itemtype/DialogJenisItem.h"

#include "kor/business/KorServiceDirectory.h"
#include "pos/masterdata/itemtype/BusinessJenisItem.h"

#include "ui_DialogJenisItem.h"

DialogJenisItem::DialogJenisItem(QWidget* parent) : KorDialog(parent), m_ui(std::make_unique<Ui::DialogJenisItem>())
{
    m_ui->setupUi(this);
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

KorEntity* DialogJenisItem::getEntity()
{
    auto* type = heldOrNew<EntityJenisItem>();
    type->setKode(m_ui->txtKode->text());
    type->setNama(m_ui->txtNamaJenis->text());
    return type;
}

void DialogJenisItem::setEntity(KorEntity* entity)
{
    hold(entity);
    const auto* type = held<EntityJenisItem>();
    m_ui->lblJenisItemID->setText(QString::number(type->getId()));
    m_ui->txtKode->setText(type->getKode());
    m_ui->txtNamaJenis->setText(type->getNama());
}
