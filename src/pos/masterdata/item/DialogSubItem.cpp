#include "pos/masterdata/item/DialogSubItem.h"

#include "kor/business/KorServiceDirectory.h"
#include "pos/masterdata/item/BusinessGroupedItem.h"
#include "pos/masterdata/item/BusinessItem.h"
#include "pos/masterdata/item/EntityGroupedItem.h"
#include "pos/masterdata/item/InventoryTextBox.h"

#include "ui_DialogSubItem.h"

#include <QMessageBox>

DialogSubItem::DialogSubItem(int parentId, QWidget* parent)
    : KorDialog(parent), m_ui(std::make_unique<Ui::DialogSubItem>()), m_parentId(parentId)
{
    m_ui->setupUi(this);
    m_items = new InventoryTextBox(m_ui->txtKode, service<BusinessItem>("Item"));
    m_items->setNextWidget(m_ui->txtJumlah);
    connect(m_items, &KorTextBoxExtender::onItemSelected, this, &DialogSubItem::onItemSelected);
    m_ui->txtHargaBeli->clear();
    focusLater(m_ui->txtKode);
}

DialogSubItem::~DialogSubItem() = default;

bool DialogSubItem::validate()
{
    if (!item())
        addError(m_ui->txtKode, tr("Enter the item code"));
    if (!m_ui->txtJumlah->isValid() || m_ui->txtJumlah->value() < 1)
        addError(m_ui->txtJumlah, tr("Enter the qty"));
    return !hasError();
}

bool DialogSubItem::beforeAccept()
{
    const auto* component = held<EntityGroupedItem>();
    auto* components = service<BusinessGroupedItem>("Grouped Item");
    const EntityPoolScope scope(m_read);
    const bool isCircle = components->consistsOf(item()->getId(), m_parentId);
    const EntityGroupedItem* found = components->findByParentAndItem(m_parentId, item()->getId());
    if (components->hasError()) {
        showError(components->takeErrors());
        return false;
    }
    if (isCircle) {
        showError(item()->getId() == m_parentId
                      ? tr("An item cannot be its own component")
                      : tr("%1 is made of this item, it cannot be a component of it").arg(item()->getNama()));
        return false;
    }
    if (found && (!component || component->getId() != found->getId())) {
        showError(tr("This item is already in the list, please update it"));
        return false;
    }
    return KorDialog::beforeAccept();
}

KorEntity* DialogSubItem::getEntity()
{
    auto* component = heldOrNew<EntityGroupedItem>();
    if (!component->getParent()) {
        auto* parent = new EntityItem(component);
        parent->setId(m_parentId);
        component->setParentItem(parent);
    }
    component->setOriginal(item());
    component->setJumlah(m_ui->txtJumlah->quantity().value_or(0));
    return component;
}

void DialogSubItem::setEntity(KorEntity* entity)
{
    hold(entity);
    const auto* component = held<EntityGroupedItem>();
    if (component->getOriginal()) {
        const EntityPoolScope scope(m_read);
        auto* items = service<BusinessItem>("Item");
        show(items->find(component->getOriginal()->getId()));
        if (items->hasError())
            showError(items->takeErrors());
    }
    m_ui->txtJumlah->setValue(component->getJumlah());
}

void DialogSubItem::onItemSelected() { show(m_items->selectedItem()); }

void DialogSubItem::on_txtKode_textEdited() { m_item.clear(); }

EntityItem* DialogSubItem::item()
{
    if (m_item || m_ui->txtKode->text().isEmpty())
        return m_item;
    const EntityPoolScope scope(m_read);
    auto* items = service<BusinessItem>("Item");
    if (EntityItem* found = items->findByCode(m_ui->txtKode->text()))
        show(found);
    if (items->hasError())
        showError(items->takeErrors());
    return m_item;
}

void DialogSubItem::show(EntityItem* item)
{
    m_item = item;
    m_ui->txtNama->setText(item ? item->getNama() : QString());
    if (!item) {
        m_ui->txtHargaBeli->clear();
        return;
    }
    m_ui->txtKode->setText(item->getKode());
    m_ui->txtHargaBeli->setMoney(item->getHargaBeli());
}
