#include "pos/printing/configuration/DialogCashierAndKitchenPrinter.h"

#include "kor/business/KorErrorScope.h"
#include "kor/business/KorServiceDirectory.h"
#include "pos/printing/configuration/BusinessPrinterConfig.h"

#include "ui_DialogCashierAndKitchenPrinter.h"

namespace
{
BusinessPrinterConfig* printerConfig() { return service<BusinessPrinterConfig>("Printer Config"); }
} // namespace

DialogCashierAndKitchenPrinter::DialogCashierAndKitchenPrinter(QWidget* parent)
    : PrinterConfigDialog(parent), m_ui(std::make_unique<Ui::DialogCashierAndKitchenPrinter>())
{
    m_ui->setupUi(this);
    usePrinterFields(*m_ui);
    KorErrorScope errors(printerConfig());
    if (auto* config = printerConfig()->getCashierPrinterConfig())
        DialogCashierAndKitchenPrinter::setEntity(config);
    showError(errors.take());
}

DialogCashierAndKitchenPrinter::~DialogCashierAndKitchenPrinter() = default;

KorEntity* DialogCashierAndKitchenPrinter::getEntity()
{
    auto* config = heldOrNew<EntityConfigCashierPrinter>();
    readPrinter(*config);
    config->setNotes(m_ui->txtNotes->toPlainText());
    return config;
}

void DialogCashierAndKitchenPrinter::setEntity(KorEntity* entity)
{
    hold(entity);
    const auto* config = held<EntityConfigCashierPrinter>();
    showPrinter(*config);
    m_ui->txtNotes->setPlainText(config->getNotes());
}

bool DialogCashierAndKitchenPrinter::beforeAccept()
{
    // Only the installer inserts the row; the form can only change it.
    if (!held<EntityConfigCashierPrinter>()) {
        showSaveError(tr("This database has no settings of the cashier printer. Please update the database."));
        return false;
    }
    if (printerConfig()->update(getEntity()))
        return true;
    showSaveError(printerConfig()->takeErrors());
    return false;
}
