#include "pos/masterdata/item/DialogSubItem.h"

#include "app/widgets/RecordField.h"
#include "kor/business/KorErrorScope.h"
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
    auto* items = new InventoryTextBox(m_ui->txtKode, service<BusinessItem>("Item"));
    items->setNextWidget(m_ui->txtJumlah);
    m_item = new RecordField<EntityItem>(items, m_ui->txtNama, this);
    m_item->lookUpWhenLeft();
    connect(m_item, &RecordFieldBase::changed, this, &DialogSubItem::onItemSelected);
    m_ui->txtHargaBeli->clear();
    edits<EntityGroupedItem>({{m_ui->txtJumlah, "Jumlah"}});
    focusLater(m_ui->txtKode);
}

DialogSubItem::~DialogSubItem() = default;

bool DialogSubItem::validate()
{
    m_item->check(tr("Enter the item code"), tr("Enter the item code"));
    if (!m_ui->txtJumlah->isValid() || m_ui->txtJumlah->value() < 1)
        addError(m_ui->txtJumlah, tr("Enter the qty"));
    return !hasError();
}

bool DialogSubItem::beforeAccept()
{
    const auto* component = held<EntityGroupedItem>();
    auto* components = service<BusinessGroupedItem>("Grouped Item");
    const EntityPoolScope scope(m_read);
    KorErrorScope errors(components);
    const bool isCircle = components->consistsOf(m_item->id(), m_parentId);
    const EntityGroupedItem* found = components->findByParentAndItem(m_parentId, m_item->id());
    if (showError(errors.take()))
        return false;
    if (isCircle) {
        showError(m_item->id() == m_parentId
                      ? tr("An item cannot be its own component")
                      : tr("%1 is made of this item, it cannot be a component of it").arg(m_item->record()->getNama()));
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
    KorDialog::getEntity();
    auto* component = held<EntityGroupedItem>();
    if (!component->getParent()) {
        auto* parent = new EntityItem(component);
        parent->setId(m_parentId);
        component->setParentItem(parent);
    }
    component->setOriginal(m_item->record());
    return component;
}

void DialogSubItem::setEntity(KorEntity* entity)
{
    KorDialog::setEntity(entity);
    const auto* component = held<EntityGroupedItem>();
    if (component->getOriginal()) {
        const EntityPoolScope scope(m_read);
        auto* items = service<BusinessItem>("Item");
        KorErrorScope errors(items);
        m_item->show(items->find(component->getOriginal()->getId()));
        showError(errors.take());
    }
}

void DialogSubItem::onItemSelected()
{
    if (const EntityItem* item = m_item->record())
        m_ui->txtHargaBeli->setMoney(item->getHargaBeli());
    else
        m_ui->txtHargaBeli->clear();
}
