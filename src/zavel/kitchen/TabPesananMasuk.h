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
 * The kitchen's screen: the open orders with their waiting time, the lines of the one in hand, what the kitchen says
 * about them, and slips again. It keeps itself up to date, with nobody at the mouse and over a lost connection too.
 */
class TabPesananMasuk final : public AppTab
{
    Q_OBJECT

public:
    explicit TabPesananMasuk(QWidget* parent = nullptr);
    ~TabPesananMasuk() override;

public slots:
    /** What the timer does: reads the queue again and leaves selection and scrolling as they are. */
    void autoRefresh();
    void on_tblQueue_clicked(const QModelIndex& index);
    void on_btnSendStatus_clicked();
    void on_btnPrint_clicked();
    void on_btnPrintAddition_clicked();
    /** The same anew, with nothing selected; the next tick selects what was in hand. */
    void on_btnRefresh_clicked();
    void on_btnClose_clicked();

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    /** Type and id of an order. */
    using Key = QPair<int, int>;
    enum Selection { Select, Deselect };

    void setUpGrids();
    /** Fonts, rows and columns by the page's width: it is read from afar. */
    void scaleGrids();

    // Reading. None of it runs an event loop, so that a tick cannot come in between.
    /** Does nothing while busy; without a connection it asks for the server first, on another thread. */
    void refresh(Selection selection);
    void reload(Selection selection);
    void notUpToDate(const QString& reason);
    void upToDate();
    QMessageBox* tell(const QString& failure);
    void serverAnswered(bool reachable);

    // The order in hand.
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
    // What the rows shown were read into; the next reading frees it.
    EntityPool m_rows;
    bool m_busy = false;
    QList<Key> m_chosen;
    int m_chosenRow = -1;
    Key m_inHand;
    QTime m_readAt;
    bool m_isUpToDate = true;
    // It closes itself when the loss is over.
    QPointer<QMessageBox> m_lossBox;
    int m_pointSize = 0;
};
