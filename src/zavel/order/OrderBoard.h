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
 * What the pages of open orders share: the grid, the walks over its selected rows, an edit that tells the kitchen what
 * is other than before. A concrete page tells what it reads, and how its orders are edited, cancelled and paid.
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
    /** The page's grid with its count, the columns as wide as told on first sight. */
    void setGrid(QTableView* grid, QLabel* count, const QList<int>& widths);

    // What a page tells.
    /** Reads the rows in a fixed number of statements; what is made beside goes to the pool. False after a failure. */
    virtual bool readRows(QList<KorEntity*>* rows, QObject* pool) = 0;
    virtual OrderBoardModel* createModel(const QList<KorEntity*>& rows) = 0;
    /** What the cursor stays on when the rows are read anew. */
    [[nodiscard]] virtual int placeOf(const EntityOrder& row) const { return row.getId(); }
    /** The code of the table that the order stands on; empty where it stands on none. */
    [[nodiscard]] virtual QString tableCodeOf(const EntityOrder&) const { return {}; }
    /** Whether the row carries an order at all; if not, that is told. */
    virtual bool carriesOrder(const EntityOrder&, Action) { return true; }
    [[nodiscard]] virtual QString nothingSelectedText() const = 0;
    /** The order with this id as it stands now; a failure is left in the service. */
    virtual EntityOrder* findOrder(int id) = 0;
    /** The order's bills; a failure is left in the service. */
    virtual QList<EntityInvoiceLink*> readBills(int orderId) = 0;
    virtual std::unique_ptr<OrderDialog> createEditForm() = 0;
    virtual bool updateOrder(EntityOrder* order) = 0;
    /**
     * Asks, and cancels the order as the user saw it: one that has changed since is not cancelled unseen. True when it
     * is gone.
     */
    virtual bool cancelOrder(EntityOrder* row) = 0;
    virtual void payOrder(EntityOrder* order) = 0;

    /** Reads the rows anew. A read that fails leaves the former ones. */
    void refresh();
    /** The selected rows from top to bottom; they live until the next refresh. */
    [[nodiscard]] QList<EntityOrder*> selectedOrders() const;
    void cancelSelectedOrders();
    void sendToKitchen(EntityOrder* order);
    /** The order as it stands now, read into the pool; null, with a box, when it is not there. */
    [[nodiscard]] EntityOrder* readOrder(int id, EntityPool& pool);
    /** What the order's form says of its bills, if it has any; false, with a box, when they could not be read. */
    bool tellOfBills(int orderId, OrderDialog* form);
    void tell(const QString& text);
    /** Shows what the service has to tell; always false. */
    bool failed(KorBusinessLogic* service);
    [[nodiscard]] BusinessPenjualan* sales() const { return m_sales; }

private:
    /** False when the user cancelled, which ends the walk over the selected rows. */
    bool editOrder(int id);
    void showRows(const QList<KorEntity*>& rows);

    OrderKind m_kind;
    BusinessPenjualan* m_sales;
    QTableView* m_grid = nullptr;
    QLabel* m_count = nullptr;
    QList<int> m_widths;
    OrderBoardModel* m_model = nullptr;
    // What the rows shown were read into; the next refresh frees it.
    EntityPool m_rows;
};
