#pragma once

#include "pos/printing/configuration/PrinterConfigDialog.h"

#include <memory>

namespace Ui
{
class DialogKitchenFoodPrinter;
}

/** The settings of one kitchen's printer. The form saves its record itself when it is confirmed. */
class DialogKitchenFoodPrinter final : public PrinterConfigDialog
{
    Q_OBJECT

public:
    explicit DialogKitchenFoodPrinter(QWidget* parent = nullptr);
    ~DialogKitchenFoodPrinter() override;

    bool validate() override;
    KorEntity* getEntity() override;
    void setEntity(KorEntity* entity) override;
    bool beforeAccept() override;

private slots:
    void on_btnBrowseJenisItem_clicked();
    void on_btnClearJenisItem_clicked();

private:
    std::unique_ptr<Ui::DialogKitchenFoodPrinter> m_ui;
};
