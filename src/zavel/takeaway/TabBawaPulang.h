#pragma once

#include "zavel/order/OrderBoard.h"

namespace Ui
{
class TabBawaPulang;
}

/** The orders to take away, and all actions on an order until the guest has the food. */
class TabBawaPulang final : public OrderBoard
{
    Q_OBJECT

public:
    explicit TabBawaPulang(QWidget* parent = nullptr);
    ~TabBawaPulang() override;

public slots:
    void on_btnAdd_clicked();
    void on_btnCancel_clicked();

protected:
    bool readRows(QList<KorEntity*>* rows, QObject* pool) override;
    OrderBoardModel* createModel(const QList<KorEntity*>& rows) override;
    [[nodiscard]] QString nothingSelectedText() const override { return tr("Please select an order"); }
    EntityOrder* findOrder(int id) override;
    QList<EntityInvoiceLink*> readBills(int orderId) override;
    std::unique_ptr<OrderDialog> createEditForm() override;
    bool updateOrder(EntityOrder* order) override;
    bool cancelOrder(EntityOrder* row) override;
    void payOrder(EntityOrder* order) override;

private:
    std::unique_ptr<Ui::TabBawaPulang> m_ui;
};
