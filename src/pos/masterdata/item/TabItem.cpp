#include "pos/masterdata/item/TabItem.h"

#include "kor/business/KorErrorScope.h"
#include "kor/business/KorServiceDirectory.h"
#include "kor/system/KorFailure.h"
#include "kor/widgets/KorErrorBox.h"
#include "pos/masterdata/item/ItemStock.h"
#include "pos/masterdata/item/ItemStockReader.h"
#include "pos/masterdata/itemtype/BusinessJenisItem.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QTableView>

namespace
{
KorBusinessLogic* inventory() { return KorServiceDirectory::get("Inventory"); }
ItemStock* stock() { return qobject_cast<ItemStock*>(inventory()); }
} // namespace

TabItem::TabItem(QWidget* parent)
    : AppFamilyTab({tr("Items"), "tblItem", "Item"}, parent), m_stock(new ItemStockReader(stock(), this)),
      m_types(new QComboBox(this)), m_stockFailure(new QLabel(this))
{
    m_types->setObjectName("ddlItemType");
    auto* label = new QLabel(tr("Item Type:"), this);
    label->setBuddy(m_types);
    filterLabel()->setText(tr("Filter:"));
    filterLayout()->insertWidget(2, label);
    filterLayout()->insertWidget(3, m_types);
    QWidget::setTabOrder(filterLayout()->itemAt(1)->widget(), m_types);
    fillTypes();
    connect(m_types, qOverload<int>(&QComboBox::activated), this, [this] { refresh(); });
    m_stockFailure->setObjectName("lblStockFailure");
    m_stockFailure->setWordWrap(true);
    m_stockFailure->hide();
    addFoot(m_stockFailure);
    connect(m_stock, &ItemStockReader::failed, this, &TabItem::tellStockFailure);
    connect(button("btnRefresh"), &QPushButton::clicked, this, &TabItem::readStock);
    refresh();
    readStock();
}

void TabItem::fillTypes()
{
    m_types->addItem(tr("All"), QString(""));
    auto* types = service<BusinessJenisItem>("Item Type");
    EntityPool pool;
    const EntityPoolScope scope(pool);
    KorErrorScope errors(types);
    for (const KorEntity* entity : types->findAll(QString())) {
        const auto* type = static_cast<const EntityJenisItem*>(entity);
        m_types->addItem(type->getNama(), type->getKode());
    }
    KorErrorBox::tell(this, errors.take());
}

QList<KorEntity*> TabItem::readRows(const QString& filter)
{
    return businessAs<BusinessItem>()->search(filter, m_types->currentData().toString());
}

KorEntityModel* TabItem::createModel(const QList<KorEntity*>& rows)
{
    auto* model = new TableModelItem(rows, this);
    model->setStock(m_stock);
    return model;
}

void TabItem::readStock()
{
    m_stockFailure->hide();
    m_stock->read();
}

void TabItem::tellStockFailure(const QString& error)
{
    const KorToldFailure failure = KorToldFailure::in(error);
    const QString reason = failure.isKnown() ? failure.sentence + ' ' + failure.advice : failure.words;
    m_stockFailure->setText(tr("The stock could not be read: %1").arg(reason.simplified()));
    m_stockFailure->setToolTip(failure.words);
    m_stockFailure->show();
}

void TabItem::entitySaved(KorEntity* entity)
{
    KorErrorScope errors(inventory());
    const int quantity = stock()->getQuantityOnHand(entity, QDate::currentDate());
    // A lost server is told by the list, which is read next.
    if (errors.take().isEmpty())
        m_stock->set(entity->getId(), quantity);
}

void TabItem::modelApplied()
{
    // Only once: afterwards the user may change the widths.
    if (std::exchange(m_sized, true))
        return;
    const auto atLeast = [this](int column, int width) {
        grid()->setColumnWidth(column, std::max(width, grid()->columnWidth(column)));
    };
    atLeast(2, 200);
    for (int column : {5, 6, 7})
        atLeast(column, 120);
}

QString TabItem::deleteQuestion(const KorEntity* entity) const
{
    return tr("Are you sure you want to delete this item: %1 ?").arg(static_cast<const EntityItem*>(entity)->getNama());
}
