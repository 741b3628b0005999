#include "purchasing/document/PurchasingLinesModel.h"

#include "purchasing/document/EntityPurchasingLine.h"

using Line = EntityPurchasingLine;

void PurchasingLinesModel::addItem()
{
    addField<Line>(QMetaType::QString, tr("Code"), [](const Line& line) { return line.getItem()->getKode(); });
    addField<Line>(QMetaType::QString, tr("Name"), [](const Line& line) { return line.getItem()->getNama(); });
}

void PurchasingLinesModel::addQuantity(const QString& header)
{
    addField<Line>(
        QMetaType::Int, header, [](const Line& line) { return QString::number(line.quantity()); }, RightAligned);
}

void PurchasingLinesModel::addUnit()
{
    addField<Line>(QMetaType::QString, tr("Unit"), [](const Line& line) {
        const EntitySatuan* unit = line.getItem()->getSatuan();
        return unit ? unit->getNama() : QString();
    });
}

void PurchasingLinesModel::addUnitPrice()
{
    addMoney<Line>(tr("Unit Price"), [](const Line& line) { return line.linePrice(); });
}

void PurchasingLinesModel::addDiscount(const QString& header)
{
    addMoney<Line>(header, [](const Line& line) { return line.getDiscount(); });
}

void PurchasingLinesModel::addAmount()
{
    addMoney<Line>(tr("Amount"), [](const Line& line) { return line.lineTotal(); });
}
