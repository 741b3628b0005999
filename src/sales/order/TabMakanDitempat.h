#pragma once

#include "app/context/EntityPool.h"
#include "app/widgets/AppTab.h"

#include <memory>

class BusinessMeja;
class BusinessPenjualan;
class EntityMakanDitempat;
class KorBusinessLogic;
class TableModelMakanDitempat;

namespace Ui
{
class TabMakanDitempat;
}

/** The board: every table with the order that stands on it, and all that is done with an order until the guests go. */
class TabMakanDitempat final : public AppTab
{
    Q_OBJECT

public:
    explicit TabMakanDitempat(QWidget* parent = nullptr);
    ~TabMakanDitempat() override;

public slots:
    void on_btnAdd_clicked();
    void on_btnEdit_clicked();
    void on_btnDelete_clicked();
    void on_btnRefresh_clicked();
    void on_btnClose_clicked();
    void on_btnSearch_clicked();
    void on_btnPay_clicked();
    void on_btnPrint_clicked();

private:
    /** Reads the board anew: three statements, whatever stands on it. A read that fails leaves the former rows. */
    void refresh();
    void showRows(const QList<KorEntity*>& rows);

    void takeNewOrder(const EntityMakanDitempat& row);
    void addToOrder(const EntityMakanDitempat& row);
    /** False when the user cancelled, which ends the walk over the selected rows. */
    bool editOrder(int id);
    void cancelOrder(EntityMakanDitempat* order);
    void payOrder(int id);
    void sendToKitchen(EntityMakanDitempat* order);
    void printRecap(int id);

    /** The selected rows from top to bottom; they live until the next refresh. */
    [[nodiscard]] QList<EntityMakanDitempat*> selectedOrders() const;
    /** Whether the row carries no order, which is told with the text. */
    [[nodiscard]] bool isFree(const EntityMakanDitempat& row, const QString& text);
    /** The order as it stands now, read into the pool; null, with a box, when it is not there. */
    [[nodiscard]] EntityMakanDitempat* readOrder(int id, EntityPool& pool);
    void tell(const QString& text);
    /** Shows what the service has to tell; always false. */
    bool failed(KorBusinessLogic* service);

    std::unique_ptr<Ui::TabMakanDitempat> m_ui;
    BusinessPenjualan* m_sales;
    BusinessMeja* m_tables;
    TableModelMakanDitempat* m_model = nullptr;
    // What the rows shown were read into; the next refresh frees it.
    EntityPool m_rows;
};
