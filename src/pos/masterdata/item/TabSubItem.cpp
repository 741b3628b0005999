#include "pos/masterdata/item/TabSubItem.h"

#include "pos/masterdata/item/EntityGroupedItem.h"

#include <QPushButton>
#include <QTableView>

TabSubItem::TabSubItem(QWidget* parent) : AppListTab({tr("Components"), "tblSubItem", "Grouped Item"}, parent)
{
    QPushButton* close = button("btnClose");
    close->setShortcut({});
    close->hide();
    refresh();
}

void TabSubItem::setParentItem(int id)
{
    m_parentId = id;
    refresh();
}

QList<KorEntity*> TabSubItem::readRows(const QString& filter)
{
    return m_parentId == KorNoValue ? QList<KorEntity*>()
                                    : businessAs<BusinessGroupedItem>()->search(filter, m_parentId);
}

KorEntityModel* TabSubItem::createModel(const QList<KorEntity*>& rows) { return new TableModelGroupedItem(rows, this); }

std::unique_ptr<KorDialog> TabSubItem::createDialog() { return std::make_unique<DialogSubItem>(m_parentId, this); }

QString TabSubItem::deleteQuestion(const KorEntity* entity) const
{
    const EntityItem* component = static_cast<const EntityGroupedItem*>(entity)->getOriginal();
    return tr("Are you sure you want to delete this sub item: %1 ?").arg(component ? component->getNama() : QString());
}

void TabSubItem::modelApplied() { grid()->setColumnWidth(2, 240); }
