#pragma once

#include "pos/printing/configuration/PrinterConfigDialog.h"

#include <memory>

namespace Ui
{
class DialogCashierAndKitchenPrinter;
}

/** The settings of the cashier printer. The form reads its row itself and saves it when it is confirmed. */
class DialogCashierAndKitchenPrinter final : public PrinterConfigDialog
{
    Q_OBJECT

public:
    explicit DialogCashierAndKitchenPrinter(QWidget* parent = nullptr);
    ~DialogCashierAndKitchenPrinter() override;

    bool validate() override { return true; }
    KorEntity* getEntity() override;
    void setEntity(KorEntity* entity) override;
    bool beforeAccept() override;

private:
    std::unique_ptr<Ui::DialogCashierAndKitchenPrinter> m_ui;
};
