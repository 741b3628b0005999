#include "pos/masterdata/item/DialogItem.h"

#include "kor/business/KorErrorScope.h"
#include "kor/business/KorServiceDirectory.h"
#include "kor/widgets/KorTabOrder.h"
#include "pos/masterdata/account/BusinessBank.h"
#include "pos/masterdata/item/BusinessItem.h"
#include "pos/masterdata/item/TabGLAccounts.h"
#include "pos/masterdata/item/TabSubItem.h"
#include "pos/masterdata/itemtype/BusinessJenisItem.h"
#include "pos/masterdata/unit/BusinessSatuan.h"

#include "ui_DialogItem.h"

DialogItem::DialogItem(QWidget* parent)
    : KorDialog(parent), m_ui(std::make_unique<Ui::DialogItem>()), m_components(new TabSubItem(this)),
      m_accounts(new TabGLAccounts(this))
{
    m_ui->setupUi(this);
    m_ui->componentsLayout->addWidget(m_components);
    m_ui->accountsLayout->addWidget(m_accounts);
    m_ui->accountsLayout->addStretch();
    putIntoTabOrder(m_ui->cbGabungan, m_components);
    putIntoTabOrder(m_ui->cbGabungan, m_accounts);
    setComponentsEnabled(false);
    edits<EntityItem>({{m_ui->lblItemID, "Id"},
                       {m_ui->txtKode, "Kode"},
                       {m_ui->txtNama, "Nama"},
                       {m_ui->txtHargaBeli, "HargaBeli"},
                       {m_ui->txtHargaJualLokal, "HargaJualLokal"},
                       {m_ui->txtNotes, "Notes"}});
    fillCombos();
    showDefaultAccounts();
    focusLater(m_ui->txtKode);
}

DialogItem::~DialogItem() = default;

void DialogItem::fillCombos()
{
    const EntityPoolScope scope(m_read);
    auto* types = service<BusinessJenisItem>("Item Type");
    auto* units = service<BusinessSatuan>("Unit");
    KorErrorScope errors({types, units});
    for (const KorEntity* type : types->findAll(QString()))
        m_ui->ddlJenis->addItem(static_cast<const EntityJenisItem*>(type)->getNama(), type->getId());
    for (const KorEntity* unit : units->findAll(QString()))
        m_ui->ddlSatuan->addItem(static_cast<const EntitySatuan*>(unit)->getNama(), unit->getId());
    showError(errors.take());
}

void DialogItem::showDefaultAccounts()
{
    const EntityPoolScope scope(m_read);
    auto* accounts = service<BusinessBank>("Bank");
    KorErrorScope errors(accounts);
    m_accounts->setSalesAccount(accounts->salesOfMaterials());
    m_accounts->setInventoryAccount(accounts->inventory());
    m_accounts->setCostOfSalesAccount(accounts->costOfSales());
    showError(errors.take());
}

void DialogItem::showAccounts()
{
    const EntityPoolScope scope(m_read);
    const auto* item = held<EntityItem>();
    auto* accounts = service<BusinessBank>("Bank");
    KorErrorScope errors(accounts);
    m_accounts->setSalesAccount(accounts->findByCode(item->getSalesAcctCode()));
    m_accounts->setInventoryAccount(accounts->findByCode(item->getInventoryAcctCode()));
    m_accounts->setCostOfSalesAccount(accounts->findByCode(item->getCostOfSalesAcctCode()));
    showError(errors.take());
}

bool DialogItem::validate()
{
    requireCode(
        m_ui->txtKode, service<BusinessItem>("Item"),
        [this](BusinessItem* items, const QString& code) {
            const EntityPoolScope scope(m_read);
            return items->findByCode(code);
        },
        tr("Enter the item code"), tr("This item code is already in use please use another code"));
    require(m_ui->txtNama, tr("Enter the item name"));
    const auto rule = [this](bool passed, QWidget* field, const QString& message) {
        if (!passed)
            addError(field, message);
    };
    rule(m_ui->ddlJenis->currentData().isValid(), m_ui->ddlJenis, tr("Select the item type"));
    rule(m_ui->ddlSatuan->currentData().isValid(), m_ui->ddlSatuan, tr("Select the item unit"));
    rule(m_ui->txtHargaBeli->isValid(), m_ui->txtHargaBeli, tr("Enter the unit cost"));
    rule(m_ui->txtHargaJualLokal->isValid(), m_ui->txtHargaJualLokal, tr("Enter sales price"));
    checkNumbers();
    const bool onlyAccounts = !hasError();
    m_accounts->check(tr("Enter the Sales Account"), tr("Enter the Inventory Account"),
                      tr("Enter the Cost of Sales Account"));
    if (hasError())
        m_ui->tabItem->setCurrentWidget(onlyAccounts ? m_ui->pageAccounts : m_ui->pageDetail);
    return !hasError();
}

KorEntity* DialogItem::getEntity()
{
    const EntityPoolScope scope(m_read);
    KorDialog::getEntity();
    auto* item = held<EntityItem>();
    item->setItemType(m_ui->rbService->isChecked() ? EntityItem::SRV : EntityItem::INV);
    item->setJenis(service<BusinessJenisItem>("Item Type")->find(m_ui->ddlJenis->currentData().toInt()));
    item->setSatuan(service<BusinessSatuan>("Unit")->find(m_ui->ddlSatuan->currentData().toInt()));
    item->setIsGroup(m_ui->cbGabungan->isChecked());
    item->setSalesAcctCode(m_accounts->salesAccountCode());
    item->setInventoryAcctCode(m_accounts->inventoryAccountCode());
    item->setCostOfSalesAcctCode(m_accounts->costOfSalesAccountCode());
    return item;
}

void DialogItem::setEntity(KorEntity* entity)
{
    KorDialog::setEntity(entity);
    const auto* item = held<EntityItem>();
    m_ui->ddlJenis->setCurrentIndex(
        m_ui->ddlJenis->findData(item->getJenis() ? item->getJenis()->getId() : KorNoValue));
    m_ui->ddlSatuan->setCurrentIndex(
        m_ui->ddlSatuan->findData(item->getSatuan() ? item->getSatuan()->getId() : KorNoValue));
    // In this order: choosing the class clears the check box of a grouped menu item.
    (item->getItemType() == EntityItem::SRV ? m_ui->rbService : m_ui->rbStok)->setChecked(true);
    m_ui->cbGabungan->setChecked(item->getIsGroup());
    setComponentsEnabled(item->getIsGroup());
    m_components->setParentItem(item->getId());
    showAccounts();
}

// --- class, check box and components page --------------------------------------------------------------------------

void DialogItem::setComponentsEnabled(bool enabled)
{
    m_ui->tabItem->setTabEnabled(m_ui->tabItem->indexOf(m_ui->pageComponents), enabled);
}

void DialogItem::on_rbService_toggled(bool checked)
{
    m_ui->cbGabungan->setEnabled(!checked);
    if (!checked)
        return;
    m_ui->cbGabungan->setChecked(false);
    setComponentsEnabled(false);
}

void DialogItem::on_cbGabungan_toggled(bool checked) { m_ui->cbGabungan->setEnabled(checked); }

void DialogItem::on_cbGabungan_clicked()
{
    const auto* item = held<EntityItem>();
    setComponentsEnabled(m_ui->cbGabungan->isChecked() && item && item->isSaved());
}
