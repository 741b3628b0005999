#include "pos/purchasing/document/PurchasingLinesModel.h"

#include "pos/purchasing/document/EntityPurchasingLine.h"

using PurchasingLine = EntityPurchasingLine;

void PurchasingLinesModel::addItem()
{
    addField<PurchasingLine>(QMetaType::QString, tr("Code"),
                             [](const PurchasingLine& line) { return line.getItem()->getKode(); });
    addField<PurchasingLine>(QMetaType::QString, tr("Name"),
                             [](const PurchasingLine& line) { return line.getItem()->getNama(); });
}

void PurchasingLinesModel::addQuantity(const QString& header)
{
    addField<PurchasingLine>(
        QMetaType::Int, header, [](const PurchasingLine& line) { return QString::number(line.quantity()); },
        RightAligned);
}

void PurchasingLinesModel::addUnit()
{
    addField<PurchasingLine>(QMetaType::QString, tr("Unit"), [](const PurchasingLine& line) {
        const EntitySatuan* unit = line.getItem()->getSatuan();
        return unit ? unit->getNama() : QString();
    });
}

void PurchasingLinesModel::addUnitPrice()
{
    addMoney<PurchasingLine>(tr("Unit Price"), [](const PurchasingLine& line) { return line.linePrice(); });
}

void PurchasingLinesModel::addDiscount(const QString& header)
{
    addMoney<PurchasingLine>(header, [](const PurchasingLine& line) { return line.getDiscount(); });
}

void PurchasingLinesModel::addAmount()
{
    addMoney<PurchasingLine>(tr("Amount"), [](const PurchasingLine& line) { return line.lineTotal(); });
}
