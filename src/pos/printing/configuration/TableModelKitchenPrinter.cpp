#include "pos/printing/configuration/TableModelKitchenPrinter.h"

#include "pos/printing/configuration/EntityConfigKitchenPrinter.h"

TableModelKitchenPrinter::TableModelKitchenPrinter(const QList<KorEntity*>& rows, QObject* parent)
    : KorEntityModel(rows, parent)
{
    addText(tr("Kitchen Name"), &EntityConfigKitchenPrinter::getKitchenName);
    addText(tr("Printer"), &EntityConfigKitchenPrinter::getPrinterName);
    addField<EntityConfigKitchenPrinter>(QMetaType::QString, tr("Item Type Code"), [](const auto& kitchen) {
        return kitchen.getKodeJenisItem().isEmpty() ? tr("[ALL]") : kitchen.getKodeJenisItem();
    });
}
