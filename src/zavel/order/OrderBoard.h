#pragma once

#include "app/context/EntityPool.h"
#include "app/widgets/AppTab.h"
#include "zavel/order/EntityOrder.h"
#include "zavel/order/OrderKind.h"

#include <memory>

class BusinessPenjualan;
class EntityInvoiceLink;
class KorBusinessLogic;
class OrderBoardModel;
class OrderDialog;
class QLabel;
class QTableView;

/**
 * Base of the pages of open orders: the grid, the loops over its selected rows, and an edit that prints the changes
 * for the kitchens. A derived page defines what is read, and how orders are edited, cancelled and paid.
 */
class OrderBoard : public AppTab
{
    Q_OBJECT

public slots:
    void on_btnEdit_clicked();
    void on_btnRefresh_clicked();
    void on_btnClose_clicked();
    void on_btnSearch_clicked();
    void on_btnPay_clicked();

protected:
    enum Action { Edit, Cancel, Pay, Print };
    static constexpr char businessName[] = "Sales";

    OrderBoard(OrderKind kind, QWidget* parent);
    /** Sets the page's grid and the label for its row count. The widths (pixels) apply when it is first filled. */
    void setGrid(QTableView* grid, QLabel* count, const QList<int>& widths);

    // Defined by each page.
    /** Reads the rows in a fixed number of statements; additional objects belong to the pool. False after a failure. */
    virtual bool readRows(QList<KorEntity*>* rows, QObject* pool) = 0;
    virtual OrderBoardModel* createModel(const QList<KorEntity*>& rows) = 0;
    /** The id by which the current row is found again after a refresh. */
    [[nodiscard]] virtual int placeOf(const EntityOrder& row) const { return row.getId(); }
    /** The code of the order's table; empty if it has none. */
    [[nodiscard]] virtual QString tableCodeOf(const EntityOrder&) const { return {}; }
    /** Whether the row has an order; if not, shows a message and returns false. */
    virtual bool carriesOrder(const EntityOrder&, Action) { return true; }
    [[nodiscard]] virtual QString nothingSelectedText() const = 0;
    /** Reads the order with this id; an error stays in the service. */
    virtual EntityOrder* findOrder(int id) = 0;
    /** Reads the order's bills; an error stays in the service. */
    virtual QList<EntityInvoiceLink*> readBills(int orderId) = 0;
    virtual std::unique_ptr<OrderDialog> createEditForm() = 0;
    virtual bool updateOrder(EntityOrder* order) = 0;
    /**
     * Asks the user and cancels the order; this fails if the order has changed since the user saw it. True if it was
     * cancelled.
     */
    virtual bool cancelOrder(EntityOrder* row) = 0;
    virtual void payOrder(EntityOrder* order) = 0;

    /** Reads the rows again. If that fails, the former rows stay. */
    void refresh();
    /** The selected rows from top to bottom; they live until the next refresh. */
    [[nodiscard]] QList<EntityOrder*> selectedOrders() const;
    void cancelSelectedOrders();
    void sendToKitchen(EntityOrder* order);
    /** Reads the current order into the pool; shows a message and returns null if that fails or it does not exist. */
    [[nodiscard]] EntityOrder* readOrder(int id, EntityPool& pool);
    /** Shows a notice in the form if the order has bills; shows a message and returns false if reading them failed. */
    bool tellOfBills(int orderId, OrderDialog* form);
    void tell(const QString& text);
    /** Shows the service's errors; always returns false. */
    bool failed(KorBusinessLogic* service);
    [[nodiscard]] BusinessPenjualan* sales() const { return m_sales; }

private:
    /** False when the user cancelled the form; the remaining selected rows are then skipped. */
    bool editOrder(int id);
    void showRows(const QList<KorEntity*>& rows);

    OrderKind m_kind;
    BusinessPenjualan* m_sales;
    QTableView* m_grid = nullptr;
    QLabel* m_count = nullptr;
    QList<int> m_widths;
    OrderBoardModel* m_model = nullptr;
    // Owns the rows shown; replaced at the next refresh.
    EntityPool m_rows;
};
