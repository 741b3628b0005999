#pragma once

#include "app/context/EntityPool.h"
#include "app/widgets/AppFilterBar.h"
#include "app/widgets/AppTab.h"

#include <memory>

class KorBusinessLogic;
class KorDialog;
class QHBoxLayout;
class QLabel;
class QPushButton;
class QTableView;

namespace Ui
{
class ListPage;
}

/**
 * The list page that all families share: filter, grid, count, and the buttons that add, edit and delete. A family
 * tells what it reads and shows, which dialog edits a record and how it asks before deleting.
 */
class AppListTab : public AppTab
{
    Q_OBJECT

public:
    /** What a page is called, and what its form calls the grid and the service behind it. */
    struct Page
    {
        QString title;
        QString gridName;
        QString serviceName;
    };

    AppListTab(const Page& page, QWidget* parent);
    /** For a list of documents: several filters in the place of one text. The page makes and reads them itself. */
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
    // What a family tells.
    /** Reads the rows for the filter, which arrives in lower case; a failure is left in the service. */
    virtual QList<KorEntity*> readRows(const QString& filter) = 0;
    virtual KorEntityModel* createModel(const QList<KorEntity*>& rows) = 0;
    virtual std::unique_ptr<KorDialog> createDialog() = 0;
    [[nodiscard]] virtual QString deleteQuestion(const KorEntity* entity) const = 0;

    // What most families leave as it is.
    [[nodiscard]] virtual int addKey() const { return 0; }
    [[nodiscard]] virtual int editKey() const { return 1; }
    [[nodiscard]] virtual int deleteKey() const { return 2; }
    [[nodiscard]] virtual QString notFoundText(int id) const;
    /** What stands below the grid. */
    [[nodiscard]] virtual QString countText(int rows) const;
    /** The same where a record was to be deleted. */
    [[nodiscard]] virtual QString deleteNotFoundText(int id) const;
    /** True where the right behind the key is asked once for the page, before any record is looked at. */
    [[nodiscard]] virtual bool asksOnce(int) const { return false; }
    virtual KorEntity* readEntity(int id);
    /** Lets the user change a record that was read for it; true when it was saved. False ends the walk over the rows.
     */
    virtual bool editEntity(KorEntity* entity);
    virtual bool insertEntity(KorEntity* entity);
    virtual bool updateEntity(KorEntity* entity);
    virtual bool removeEntity(KorEntity* entity);
    /** The last word before a delete that the user has confirmed; it tells the user why not. */
    virtual bool mayDelete(KorEntity*) { return true; }
    /** Called when a form has been saved and is closed, before the list is read again: printing and the like. */
    virtual void entitySaved(KorEntity*) {}
    /** Called when a walk over selected rows has ended, whatever came of it. */
    virtual void edited() {}
    /** Called after the grid got a new model: column widths and the like. */
    virtual void modelApplied() {}

    /** Reads and shows the list. A concrete page calls it once at the end of its constructor. */
    void refresh();
    /** Runs the form for a new record or a record handed in; true when it was saved. */
    bool runDialog(KorDialog& dialog, bool isNew);
    void showServiceError(bool critical = true);
    void tellNotFound(const QString& text);
    /** Totals and the like, between the list and the buttons. */
    void addFoot(QWidget* foot);
    /** A further button in the row below the list, after those that every list has; the caller connects it. */
    QPushButton* addButton(const QString& name, const QString& text, const QString& icon);
    /** For records that the program makes itself: the page edits them, and that is all. */
    void takeAddAndDeleteAway();

    [[nodiscard]] KorBusinessLogic* business() const { return m_business; }
    template <class Service>
    [[nodiscard]] Service* businessAs() const
    {
        return static_cast<Service*>(m_business);
    }
    /** Null on a page with one text. */
    [[nodiscard]] AppFilterBar* filters() const { return m_filters; }
    [[nodiscard]] QTableView* grid() const;
    [[nodiscard]] KorEntityModel* model() const { return m_model; }
    /** Where a page puts further filters, between the filter box and the search button. */
    [[nodiscard]] QHBoxLayout* filterLayout() const;
    [[nodiscard]] QLabel* filterLabel() const;
    [[nodiscard]] QPushButton* button(const char* name) const;
    [[nodiscard]] QString filterText() const;

private:
    void refreshAfterSave();
    void tellUnread();

    std::unique_ptr<Ui::ListPage> m_ui;
    QString m_serviceName;
    KorBusinessLogic* m_business;
    AppFilterBar* m_filters = nullptr;
    KorEntityModel* m_model = nullptr;
    bool m_justSaved = false;
    // The records of the rows shown; the next refresh frees them with all that was read with them.
    EntityPool m_rows;
};

/**
 * A list page made of a family's classes: the service with findAll(filter), the table model of a list and a parent,
 * and the entry dialog.
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
