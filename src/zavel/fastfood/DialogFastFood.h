#pragma once

#include "zavel/payment/PaymentDialog.h"

#include <memory>

class EntityFastFood;
class TabFastFoodDetail;

namespace Ui
{
class DialogFastFood;
}

/**
 * The form of a counter sale: entered and paid in one step. On accept it passes the sale to its saver and closes; the
 * page prints the bill.
 */
class DialogFastFood final : public PaymentDialog
{
    Q_OBJECT

public:
    explicit DialogFastFood(QWidget* parent = nullptr);
    ~DialogFastFood() override;

    bool beforeAccept() override;
    KorEntity* getEntity() override;
    void setEntity(KorEntity* sale) override;

public slots:
    void on_txtCredit_editingFinished();

protected:
    [[nodiscard]] QList<EntityInvoiceDetail*> invoiceLines() const override;
    void focusLines() override;
    [[nodiscard]] bool isStored() const override;

private:
    void linesChanged();
    void focusMoney();

    std::unique_ptr<Ui::DialogFastFood> m_ui;
    EntityFastFood* m_sale;
    TabFastFoodDetail* m_menu;
};
