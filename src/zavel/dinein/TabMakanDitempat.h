#pragma once

#include "zavel/order/OrderBoard.h"

class BusinessMeja;
class EntityMakanDitempat;

namespace Ui
{
class TabMakanDitempat;
}

/** The board: every table with its open order, and all actions on an order until the guests leave. */
class TabMakanDitempat final : public OrderBoard
{
    Q_OBJECT

public:
    explicit TabMakanDitempat(QWidget* parent = nullptr);
    ~TabMakanDitempat() override;

public slots:
    void on_btnAdd_clicked();
    void on_btnDelete_clicked();
    void on_btnPrint_clicked();

protected:
    /** Three statements, independent of the number of orders. */
    bool readRows(QList<KorEntity*>* rows, QObject* pool) override;
    OrderBoardModel* createModel(const QList<KorEntity*>& rows) override;
    [[nodiscard]] int placeOf(const EntityOrder& row) const override;
    [[nodiscard]] QString tableCodeOf(const EntityOrder& order) const override;
    bool carriesOrder(const EntityOrder& row, Action action) override;
    [[nodiscard]] QString nothingSelectedText() const override { return tr("Please select a table"); }
    EntityOrder* findOrder(int id) override;
    QList<EntityInvoiceLink*> readBills(int orderId) override;
    std::unique_ptr<OrderDialog> createEditForm() override;
    bool updateOrder(EntityOrder* order) override;
    bool cancelOrder(EntityOrder* row) override;
    void payOrder(EntityOrder* order) override;

private:
    void takeNewOrder(const EntityMakanDitempat& row);
    void addToOrder(const EntityMakanDitempat& row);

    std::unique_ptr<Ui::TabMakanDitempat> m_ui;
    BusinessMeja* m_tables;
};
