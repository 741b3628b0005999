#include "pos/printing/configuration/TabKitchenPrinter.h"

#include "pos/printing/configuration/BusinessPrinterConfig.h"
#include "pos/printing/configuration/DialogKitchenFoodPrinter.h"
#include "pos/printing/configuration/TableModelKitchenPrinter.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLineEdit>
#include <QTableView>

namespace
{
enum Column { KitchenName, Printer };
} // namespace

TabKitchenPrinter::TabKitchenPrinter(QWidget* parent)
    : AppListTab({tr("Kitchen Printers"), "tblKitchenPrinter", "Printer Config"}, parent), m_column(new QComboBox(this))
{
    m_column->setObjectName("ddlFilter");
    m_column->setToolTip(tr("Where to search"));
    m_column->setAccessibleName(m_column->toolTip());
    m_column->addItem(tr("Kitchen Name"), KitchenName);
    m_column->addItem(tr("Printer"), Printer);
    filterLayout()->insertWidget(filterLayout()->count() - 1, m_column);
    refresh();
    findChild<QLineEdit*>("txtFilter")->setFocus();
}

QList<KorEntity*> TabKitchenPrinter::readRows(const QString& filter)
{
    const bool byPrinter = m_column->currentData() == Printer;
    QList<KorEntity*> rows;
    const QList<EntityConfigKitchenPrinter*> kitchens =
        businessAs<BusinessPrinterConfig>()->getAllKitchenPrinterConfig();
    for (EntityConfigKitchenPrinter* kitchen : kitchens) {
        const QString text = byPrinter ? kitchen->getPrinterName() : kitchen->getKitchenName();
        if (text.contains(filter, Qt::CaseInsensitive))
            rows.append(kitchen);
    }
    return rows;
}

KorEntityModel* TabKitchenPrinter::createModel(const QList<KorEntity*>& rows)
{
    return new TableModelKitchenPrinter(rows, this);
}

std::unique_ptr<KorDialog> TabKitchenPrinter::createDialog()
{
    return std::make_unique<DialogKitchenFoodPrinter>(this);
}

QString TabKitchenPrinter::deleteQuestion(const KorEntity* entity) const
{
    return tr("Are you sure you want to delete this kitchen: %1 ?")
        .arg(static_cast<const EntityConfigKitchenPrinter*>(entity)->getKitchenName());
}

void TabKitchenPrinter::modelApplied()
{
    constexpr int width = 300;
    grid()->setColumnWidth(KitchenName, width);
    grid()->setColumnWidth(Printer, width);
    grid()->horizontalHeader()->setStretchLastSection(true);
}
