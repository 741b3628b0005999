#pragma once

#include "app/context/EntityPool.h"
#include "app/widgets/AppTab.h"

#include <QPointer>
#include <QTime>

#include <memory>

class BusinessPenjualan;
class EntityQueue;
class KorConnectionProbe;
class QMessageBox;
class TableModelQueue;
class TableModelQueueMenu;

namespace Ui
{
class TabPesananMasuk;
}

/**
 * The kitchen's screen: the open orders with their waiting time, the lines of the selected one with the kitchen's
 * status texts, and printing slips again. It refreshes by a timer, and again once a lost connection is back.
 */
class TabPesananMasuk final : public AppTab
{
    Q_OBJECT

public:
    explicit TabPesananMasuk(QWidget* parent = nullptr);
    ~TabPesananMasuk() override;

public slots:
    /** Called by the timer: reads the queue again and keeps the selection and the scroll position. */
    void autoRefresh();
    void on_tblQueue_clicked(const QModelIndex& index);
    void on_btnSendStatus_clicked();
    void on_btnPrint_clicked();
    void on_btnPrintAddition_clicked();
    /** Reads the queue again with nothing selected; the timer's next refresh restores the selection. */
    void on_btnRefresh_clicked();
    void on_btnClose_clicked();

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    /** Type and id of an order. */
    using Key = QPair<int, int>;
    enum Selection { Select, Deselect };

    void setUpGrids();
    /** Scales fonts, rows and columns with the page's width, because the screen is read from a distance. */
    void scaleGrids();

    // Reading. No function here runs an event loop, so that the timer cannot fire in between.
    /** Does nothing while busy. Without a connection it first probes the server on another thread. */
    void refresh(Selection selection);
    void reload(Selection selection);
    void notUpToDate(const QString& reason);
    void upToDate();
    QMessageBox* tell(const QString& failure);
    void serverAnswered(bool reachable);

    // The selected order.
    void orderChosen();
    void selectChosen();
    /** Null shows no lines. */
    void showLines(const EntityQueue* row);
    [[nodiscard]] QList<EntityQueue*> chosenOrders() const;
    void printChosen(bool additionsOnly);
    [[nodiscard]] static Key keyOf(const EntityQueue& row);

    std::unique_ptr<Ui::TabPesananMasuk> m_ui;
    BusinessPenjualan* m_sales;
    KorConnectionProbe* m_probe;
    TableModelQueue* m_queue;
    TableModelQueueMenu* m_lines;
    // Owns the rows shown; replaced at the next refresh.
    EntityPool m_rows;
    bool m_busy = false;
    QList<Key> m_chosen;
    int m_chosenRow = -1;
    Key m_inHand;
    QTime m_readAt;
    bool m_isUpToDate = true;
    // The box about the lost connection; closed when the connection is back.
    QPointer<QMessageBox> m_lossBox;
    int m_pointSize = 0;
};
