#pragma once

#include "app/context/EntityPool.h"
#include "app/widgets/AppFilterBar.h"
#include "app/widgets/AppTab.h"

#include <memory>

class FoundRows;
class KorBusinessLogic;
class KorDialog;
class QHBoxLayout;
class QLabel;
class QPushButton;
class QTableView;
class RestReader;

namespace Ui
{
class ListPage;
}

/**
 * Base of all list pages: filter, grid, count, and the buttons to add, edit and delete. A subclass defines which rows
 * it reads and shows, which dialog edits a record, and the question before deleting.
 */
class AppListTab : public AppTab
{
    Q_OBJECT

public:
    /** The title of the page, the object name of its grid and the name of its service. */
    struct Page
    {
        QString title;
        QString gridName;
        QString serviceName;
    };

    AppListTab(const Page& page, QWidget* parent);
    /** For a list of documents: a filter bar instead of the filter text. The page adds and reads the filters. */
    AppListTab(const Page& page, int filtersPerRow, QWidget* parent);
    ~AppListTab() override;

public slots:
    virtual void on_btnAdd_clicked();
    void on_btnEdit_clicked();
    void on_btnDelete_clicked();
    void on_btnRefresh_clicked();
    void on_btnClose_clicked();
    void on_btnSearch_clicked();

protected:
    // Defined by subclasses.
    /** Reads the rows for the filter, which is in lower case. Errors stay in the service. */
    virtual QList<KorEntity*> readRows(const QString& filter) = 0;
    /**
     * For a list that may be long: its rows, not yet read, in place of readRows(). The first ones are shown at once,
     * the rest follows while the page can be used.
     */
    virtual std::shared_ptr<FoundRows> openRows();
    virtual KorEntityModel* createModel(const QList<KorEntity*>& rows) = 0;
    virtual std::unique_ptr<KorDialog> createDialog() = 0;
    [[nodiscard]] virtual QString deleteQuestion(const KorEntity* entity) const = 0;

    // Most subclasses keep these.
    [[nodiscard]] virtual int addKey() const { return 0; }
    [[nodiscard]] virtual int editKey() const { return 1; }
    [[nodiscard]] virtual int deleteKey() const { return 2; }
    [[nodiscard]] virtual QString notFoundText(int id) const;
    /** The text below the grid. */
    [[nodiscard]] virtual QString countText(int rows) const;
    /** The same for a record that was to be deleted. */
    [[nodiscard]] virtual QString deleteNotFoundText(int id) const;
    /** True if the right is checked once for the page, before a record is read, and not per record. */
    [[nodiscard]] virtual bool asksOnce(int) const { return false; }
    virtual KorEntity* readEntity(int id);
    /** Lets the user edit the record; true if it was saved. False also skips the remaining selected rows. */
    virtual bool editEntity(KorEntity* entity);
    virtual bool insertEntity(KorEntity* entity);
    virtual bool updateEntity(KorEntity* entity);
    virtual bool removeEntity(KorEntity* entity);
    /** Called after the user has confirmed a delete. If it returns false, it has shown the reason. */
    virtual bool mayDelete(KorEntity*) { return true; }
    /** Called after a form has saved and closed, before the list is read again; for example to print. */
    virtual void entitySaved(KorEntity*) {}
    /** Called after the selected rows were edited, even if nothing was saved. */
    virtual void edited() {}
    /** Called after the grid got a new model, for example to set column widths. */
    virtual void modelApplied() {}

    /** Reads and shows the list. A concrete page calls it once at the end of its constructor. */
    void refresh();
    /** Runs the form for a new or an existing record; true if it was saved. */
    bool runDialog(KorDialog& dialog, bool isNew);
    void showServiceError(bool critical = true);
    void tellNotFound(const QString& text);
    /** Adds a widget between the list and the buttons, for example totals. */
    void addFoot(QWidget* foot);
    /** Adds a button below the list after the standard ones; the caller connects it. */
    QPushButton* addButton(const QString& name, const QString& text, const QString& icon);
    /** For records that the program creates itself: they can only be edited. */
    void takeAddAndDeleteAway();

    [[nodiscard]] KorBusinessLogic* business() const { return m_business; }
    template <class Service>
    [[nodiscard]] Service* businessAs() const
    {
        return static_cast<Service*>(m_business);
    }
    /** Null on a page with a filter text. */
    [[nodiscard]] AppFilterBar* filters() const { return m_filters; }
    [[nodiscard]] QTableView* grid() const;
    [[nodiscard]] KorEntityModel* model() const { return m_model; }
    /** For further filters between the filter text and the search button. */
    [[nodiscard]] QHBoxLayout* filterLayout() const;
    [[nodiscard]] QLabel* filterLabel() const;
    [[nodiscard]] QPushButton* button(const char* name) const;
    [[nodiscard]] QString filterText() const;

private:
    void refreshAfterSave();
    void tellUnread();
    void readRest(const std::shared_ptr<FoundRows>& rows, int currentId);
    void showCount();

    std::unique_ptr<Ui::ListPage> m_ui;
    QString m_serviceName;
    KorBusinessLogic* m_business;
    AppFilterBar* m_filters = nullptr;
    KorEntityModel* m_model = nullptr;
    RestReader* m_rest = nullptr;
    /** The record that was current before the list was read again and has not been found yet. */
    int m_wantedId = 0;
    bool m_justSaved = false;
    // The records of the rows shown; the next refresh deletes them.
    EntityPool m_rows;
};

/**
 * A list page made from a service with findAll(filter), a table model, whose constructor takes the rows and a parent,
 * and an entry dialog.
 */
template <class Service, class Model, class Dialog>
class AppFamilyTab : public AppListTab
{
public:
    using Form = Dialog;
    using Business = Service;
    using AppListTab::AppListTab;

protected:
    QList<KorEntity*> readRows(const QString& filter) override { return businessAs<Service>()->findAll(filter); }
    KorEntityModel* createModel(const QList<KorEntity*>& rows) override { return new Model(rows, this); }
    std::unique_ptr<KorDialog> createDialog() override { return std::make_unique<Dialog>(this); }
};
