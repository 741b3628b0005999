#pragma once

#include <QModelIndex>
#include <QPointer>
#include <QWidget>

#include <functional>

class KorEntity;
class KorEntityModel;
class KorSortFilterProxyModel;
class QTableView;

/** Base of every page: a widget in the main window's tab widget. */
class KorTab : public QWidget
{
    Q_OBJECT

public:
    explicit KorTab(QWidget* parent = nullptr);

    /** Emits onclose(), on which the main window removes the page, and closes it. */
    void close();
    /** True if the page has an open form or question: the page and its rows must not be deleted. */
    [[nodiscard]] static bool isBusy(const QWidget* page);
    /**
     * Calls work later, when the page is no longer busy or is deleted; false, without calling it, if the page is not
     * busy. Work is dropped if the context is deleted.
     */
    static bool putOff(const QWidget* page, QObject* context, const std::function<void()>& work);

signals:
    void onclose(QWidget* tab);

public slots:
    /** A double click presses the button that has the shortcut F2. */
    void doubleClickedSlot(const QModelIndex& index);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

    /** The same for this page. */
    bool putOff(const std::function<void()>& work) { return putOff(this, this, work); }

    /** A new sort proxy, owned by the tab. */
    virtual KorSortFilterProxyModel* createProxyModel();

    /** Shows the model in the grid, sortable, with selection of whole rows; keeps column widths and sort order. */
    void applyModel(QTableView* view, KorEntityModel* model);

    /** Restores the user's column widths; pages that set their own widths call it afterwards. */
    void restoreColumns(QTableView* view);

    /** Default widths if fitting to rows is not good enough; the last column takes the rest of the grid. */
    static void setColumnWidths(QTableView* view, const QList<int>& widths);
    /** Widened if needed to show the full heading, also in a larger font. */
    static void setColumnWidth(QTableView* view, int column, int width);

    // The selected rows from top to bottom.
    [[nodiscard]] static QList<int> selectedIds(const QTableView* view, const KorEntityModel* model);
    [[nodiscard]] static QList<int> selectedEntityIds(const QTableView* view, const KorEntityModel* model);
    [[nodiscard]] static QList<KorEntity*> selectedEntities(const QTableView* view, const KorEntityModel* model);
    /** Makes the record with this id the current row; false if there is none. */
    static bool selectEntity(QTableView* view, const KorEntityModel* model, int id);

    /** Handles the F2 that a double click posts; a real F2 is handled as a shortcut before. */
    void keyPressEvent(QKeyEvent* event) override;

private:
    static void doOnceFree(const QPointer<const QWidget>& page, QObject* context, int level,
                           const std::function<void()>& work);
};
