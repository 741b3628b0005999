#pragma once

#include <QModelIndex>
#include <QPointer>
#include <QWidget>

#include <functional>

class KorEntity;
class KorEntityModel;
class KorSortFilterProxyModel;
class QTableView;

/** Base of every working screen: a page of the main window's tab widget. */
class KorTab : public QWidget
{
    Q_OBJECT

public:
    explicit KorTab(QWidget* parent = nullptr);

    /** Asks the main window to take the page away, and closes it. */
    void close();
    /** A form or a question of the page is open: neither the page nor its rows may go from under it. */
    [[nodiscard]] static bool isBusy(const QWidget* page);
    /**
     * Puts off what may not be done while the page is busy, until it is free or gone; false when nothing is in the
     * way. The work goes with the context.
     */
    static bool putOff(const QWidget* page, QObject* context, const std::function<void()>& work);

signals:
    void onclose(QWidget* tab);

public slots:
    /** A double click on a row is the key F2, and so the button that has this shortcut. */
    void doubleClickedSlot(const QModelIndex& index);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

    /** The same for what the page does itself. */
    bool putOff(const std::function<void()>& work) { return putOff(this, this, work); }

    /** A new sort proxy with the tab as parent. */
    virtual KorSortFilterProxyModel* createProxyModel();

    /** Shows the model in the grid, sortable and selectable by whole rows; widths and sort order stay as they were. */
    void applyModel(QTableView* view, KorEntityModel* model);

    /** The widths that a person gave the columns; a page that sets widths of its own calls it afterwards. */
    void restoreColumns(QTableView* view);

    /** Widths on first sight, where what the rows need is not the best; the last column takes the rest of the grid. */
    static void setColumnWidths(QTableView* view, const QList<int>& widths);
    /** A heading is read in full also where the font is larger than the one that the width was chosen for. */
    static void setColumnWidth(QTableView* view, int column, int width);

    // The selected rows from top to bottom as the grid shows them.
    [[nodiscard]] static QList<int> selectedIds(const QTableView* view, const KorEntityModel* model);
    [[nodiscard]] static QList<int> selectedEntityIds(const QTableView* view, const KorEntityModel* model);
    [[nodiscard]] static QList<KorEntity*> selectedEntities(const QTableView* view, const KorEntityModel* model);
    /** Makes the row of the record with this id the current one; false when the grid has none. */
    static bool selectEntity(QTableView* view, const KorEntityModel* model, int id);

    /** What a double click posts presses the button with this shortcut; a real F2 has gone there already. */
    void keyPressEvent(QKeyEvent* event) override;

private:
    static void doOnceFree(const QPointer<const QWidget>& page, QObject* context, int level,
                           const std::function<void()>& work);
};
