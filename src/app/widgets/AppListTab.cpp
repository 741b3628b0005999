#include "app/widgets/AppListTab.h"

#include "app/context/AccessCheck.h"
#include "app/context/AppContext.h"
#include "app/persistence/FoundRows.h"
#include "app/widgets/RestReader.h"
#include "kor/business/KorBusinessLogic.h"
#include "kor/business/KorErrorScope.h"
#include "kor/business/KorServiceDirectory.h"
#include "kor/entity/KorEntity.h"
#include "kor/system/KorFailure.h"
#include "kor/widgets/KorDialog.h"
#include "kor/widgets/KorEntityModel.h"
#include "kor/widgets/KorErrorBox.h"

#include "ui_ListPage.h"

#include <QMessageBox>
#include <QScopedValueRollback>
#include <QShortcut>

AppListTab::AppListTab(const Page& page, QWidget* parent)
    : AppTab(parent), m_ui(std::make_unique<Ui::ListPage>()), m_serviceName(page.serviceName),
      m_business(KorServiceDirectory::get(page.serviceName))
{
    m_ui->setupUi(this);
    m_ui->tblList->setObjectName(page.gridName);
    setWindowTitle(page.title);
    const auto* focusFilter = new QShortcut(QKeySequence("Ctrl+F"), this);
    connect(focusFilter, &QShortcut::activated, m_ui->txtFilter, [this] { m_ui->txtFilter->setFocus(); });
}

AppListTab::AppListTab(const Page& page, int filtersPerRow, QWidget* parent) : AppListTab(page, parent)
{
    m_filters = new AppFilterBar(filtersPerRow, this);
    m_ui->lblFilter->hide();
    m_ui->txtFilter->hide();
    m_ui->txtFilter->setEnabled(false);
    // So that a page can use this object name for its own filter.
    m_ui->txtFilter->setObjectName(QString());
    m_ui->filterLayout->insertWidget(0, m_filters, 1);
    m_ui->filterLayout->setAlignment(m_ui->btnSearch, Qt::AlignTop);
    setTabOrder(m_filters, m_ui->btnSearch);
}

AppListTab::~AppListTab()
{
    if (m_model)
        m_model->clear();
}

void AppListTab::refresh()
{
    if (putOff([this] { refresh(); }))
        return;
    const int currentId = m_model ? selectedEntityIds(grid(), m_model).value(0, KorNoValue) : KorNoValue;

    if (m_rest)
        m_rest->end();
    const KorErrorScope errors(m_business);
    EntityPool read;
    QList<KorEntity*> rows;
    const std::shared_ptr<FoundRows> longList = openRows();
    {
        const EntityPoolScope scope(read);
        if (longList)
            longList->readOn();
        else
            rows = readRows(filterText());
    }
    if (errors.failed())
        tellUnread();

    KorEntityModel* former = m_model;
    m_model = createModel(rows);
    if (longList)
        m_model->setSource(longList);
    applyModel(grid(), m_model);
    modelApplied();
    restoreColumns(grid());
    if (former) {
        former->clear();
        delete former;
    }
    m_rows.swap(read);

    if (longList)
        readRest(longList, currentId);
    else
        selectEntity(grid(), m_model, currentId);
    grid()->setFocus();
    showCount();
}

std::shared_ptr<FoundRows> AppListTab::openRows() { return nullptr; }

void AppListTab::readRest(const std::shared_ptr<FoundRows>& rows, int currentId)
{
    if (!m_rest) {
        m_rest = new RestReader(this);
        connect(m_rest, &RestReader::failed, this, [this] { showServiceError(); });
        connect(m_rest, &RestReader::advanced, this, [this] {
            const bool isFree = !grid()->selectionModel()->hasSelection();
            if (m_wantedId != KorNoValue && (!isFree || selectEntity(grid(), m_model, m_wantedId)))
                m_wantedId = KorNoValue;
            showCount();
        });
    }
    m_wantedId = selectEntity(grid(), m_model, currentId) ? KorNoValue : currentId;
    m_rest->begin(rows, m_model);
}

void AppListTab::showCount()
{
    const QString count = countText(m_model->rowCount());
    const bool isReading = m_rest && m_rest->isReading();
    // Escape stops the reading first; only then it closes the page.
    const QKeySequence closes(isReading ? 0 : Qt::Key_Escape);
    if (m_rest && m_ui->btnClose->shortcut() != closes)
        m_ui->btnClose->setShortcut(closes);
    if (isReading)
        m_ui->lblCount->setText(tr("%1 so far, reading on (Esc stops)").arg(count));
    else if (m_rest && m_rest->leftOutBefore().isValid())
        m_ui->lblCount->setText(
            tr("%1, back to %2; earlier ones are left out")
                .arg(count, m_rest->leftOutBefore().toString(AppContext::instance()->dateFormat())));
    else
        m_ui->lblCount->setText(count);
}

void AppListTab::refreshAfterSave()
{
    const QScopedValueRollback<bool> justSaved(m_justSaved, true);
    refresh();
}

void AppListTab::tellUnread()
{
    if (!m_justSaved) {
        showServiceError();
        return;
    }
    // The advice to try again would seem to be about the save.
    KorToldFailure failure = KorToldFailure::in(m_business->takeErrors());
    failure.advice.clear();
    KorErrorBox::critical(this, tr("Error"),
                          tr("It is saved. Only the list could not be read again.") + "\r\n\r\n" + failure.text());
}

void AppListTab::on_btnAdd_clicked()
{
    if (!hasAccess(m_serviceName, addKey()))
        return;
    EntityPool read;
    const EntityPoolScope scope(read);
    const auto dialog = createDialog();
    if (runDialog(*dialog, true))
        refreshAfterSave();
}

void AppListTab::on_btnEdit_clicked()
{
    const bool once = asksOnce(editKey());
    if (once && !hasAccess(m_serviceName, editKey()))
        return;
    const QList<int> ids = selectedEntityIds(grid(), m_model);
    for (int id : ids) {
        EntityPool read;
        const EntityPoolScope scope(read);
        KorEntity* entity = readEntity(id);
        if (!entity) {
            tellNotFound(notFoundText(id));
            continue;
        }
        if (!once && !hasAccess(m_serviceName, editKey(), entity)) {
            entity->deleteLater();
            continue;
        }
        if (!editEntity(entity))
            break;
        refreshAfterSave();
    }
    if (!ids.isEmpty())
        edited();
}

void AppListTab::on_btnDelete_clicked()
{
    const bool once = asksOnce(deleteKey());
    if (once && !hasAccess(m_serviceName, deleteKey()))
        return;
    const QList<int> ids = selectedEntityIds(grid(), m_model);
    for (int id : ids) {
        EntityPool read;
        const EntityPoolScope scope(read);
        KorEntity* entity = readEntity(id);
        if (!entity) {
            tellNotFound(deleteNotFoundText(id));
            continue;
        }
        if ((once || hasAccess(m_serviceName, deleteKey(), entity)) &&
            QMessageBox::question(this, tr("Delete"), deleteQuestion(entity), QMessageBox::Yes | QMessageBox::No) ==
                QMessageBox::Yes &&
            mayDelete(entity) && !removeEntity(entity))
            showServiceError();
        entity->deleteLater();
    }
    refresh();
}

bool AppListTab::editEntity(KorEntity* entity)
{
    const auto dialog = createDialog();
    dialog->setEntity(entity);
    return runDialog(*dialog, false);
}

bool AppListTab::runDialog(KorDialog& dialog, bool isNew)
{
    // Save before the form closes: if it fails, the user's entries stay.
    KorEntity* entity = nullptr;
    dialog.setSaver([this, &dialog, &entity, isNew] {
        entity = dialog.getEntity();
        const bool saved = isNew ? insertEntity(entity) : updateEntity(entity);
        if (!saved)
            showServiceError(!isNew);
        return saved;
    });
    if (dialog.exec() != QDialog::Accepted || dialog.hasError())
        return false;
    entitySaved(entity);
    return true;
}

void AppListTab::showServiceError(bool critical)
{
    const QString text = m_business->takeErrors();
    if (critical)
        KorErrorBox::critical(this, tr("Error"), text);
    else
        KorErrorBox::information(this, tr("Error"), text);
}

void AppListTab::tellNotFound(const QString& text)
{
    // A failed read does not mean that the row was deleted.
    if (!KorErrorBox::tell(this, m_business->takeErrors()))
        QMessageBox::information(this, tr("Error"), text);
}

void AppListTab::addFoot(QWidget* foot)
{
    m_ui->pageLayout->insertWidget(m_ui->pageLayout->indexOf(m_ui->buttonLayout), foot);
}

QPushButton* AppListTab::addButton(const QString& name, const QString& text, const QString& icon)
{
    auto* extra = new QPushButton(QIcon(icon), text, this);
    extra->setObjectName(name);
    m_ui->buttonLayout->insertWidget(m_ui->buttonLayout->indexOf(m_ui->lblCount), extra);
    return extra;
}

void AppListTab::takeAddAndDeleteAway()
{
    m_ui->btnAdd->setEnabled(false);
    m_ui->btnAdd->hide();
    m_ui->btnDelete->setEnabled(false);
    m_ui->btnDelete->hide();
}

void AppListTab::on_btnRefresh_clicked() { refresh(); }

void AppListTab::on_btnClose_clicked() { close(); }

void AppListTab::on_btnSearch_clicked() { refresh(); }

QString AppListTab::notFoundText(int id) const { return tr("Can not find entity with id: %1").arg(id); }

QString AppListTab::deleteNotFoundText(int id) const { return AppListTab::notFoundText(id); }

QString AppListTab::countText(int rows) const { return tr("%1 Items").arg(rows); }

KorEntity* AppListTab::readEntity(int id) { return m_business->find(id); }

bool AppListTab::insertEntity(KorEntity* entity) { return m_business->insert(entity); }

bool AppListTab::updateEntity(KorEntity* entity) { return m_business->update(entity); }

bool AppListTab::removeEntity(KorEntity* entity) { return m_business->remove(entity); }

QTableView* AppListTab::grid() const { return m_ui->tblList; }

QHBoxLayout* AppListTab::filterLayout() const { return m_ui->filterLayout; }

QLabel* AppListTab::filterLabel() const { return m_ui->lblFilter; }

QPushButton* AppListTab::button(const char* name) const { return findChild<QPushButton*>(QLatin1String(name)); }

QString AppListTab::filterText() const { return m_ui->txtFilter->text().toLower(); }
