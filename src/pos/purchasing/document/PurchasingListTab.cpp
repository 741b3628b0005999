#include "pos/purchasing/document/PurchasingListTab.h"

#include "app/widgets/UnfinishedSave.h"
#include "kor/business/KorServiceDirectory.h"
#include "kor/entity/KorEntity.h"
#include "pos/masterdata/supplier/SupplierTextBox.h"
#include "pos/purchasing/document/PurchasingService.h"

#include <QComboBox>
#include <QDateEdit>
#include <QLineEdit>

namespace
{
constexpr int filtersPerRow = 3;

QDate firstOfMonth()
{
    const QDate today = QDate::currentDate();
    return {today.year(), today.month(), 1};
}
} // namespace

PurchasingListTab::PurchasingListTab(const Page& page, const Words& words, QWidget* parent)
    : AppListTab(page, filtersPerRow, parent), m_deleteQuestion(words.deleteQuestion)
{
    m_from = filters()->addDate("dateFrom", tr("From Date :"), firstOfMonth());
    m_to = filters()->addDate("dateTo", tr("To Date :"));
    m_kind = filters()->addChoice(words.kindName, words.kindLabel, AppFilterBar::Rows{{tr("All"), 0}} + words.kinds);
    m_supplier = filters()->addText("txtSupplier", tr("Supplier :"));
    m_text = filters()->addText("txtFilter", tr("Search :"));
    m_field = filters()->addChoice("ddlFilter", tr("In :"), words.fields);
    m_suppliers = new SupplierTextBox(m_supplier, service<BusinessSupplier>("Supplier"));
    connect(m_suppliers, &KorTextBoxExtender::onItemSelected, this, &PurchasingListTab::on_btnSearch_clicked);
}

PurchasingFilter PurchasingListTab::chosen() const
{
    // The user has finished typing, so no list of suggestions must open.
    m_suppliers->preventSuggest();
    PurchasingFilter filter;
    filter.from = m_from->date();
    filter.to = m_to->date();
    filter.kind = m_kind->currentData().toInt();
    filter.supplierCode = m_supplier->text().trimmed();
    filter.field = static_cast<PurchasingFilter::Field>(m_field->currentData().toInt());
    filter.text = m_text->text().trimmed();
    return filter;
}

QString PurchasingListTab::deleteQuestion(const KorEntity* document) const
{
    return m_deleteQuestion.arg(document->property("No").toString());
}

bool PurchasingListTab::insertEntity(KorEntity* document)
{
    return stands(AppListTab::insertEntity(document), *document);
}

bool PurchasingListTab::updateEntity(KorEntity* document)
{
    return stands(AppListTab::updateEntity(document), *document);
}

/**
 * If the document is saved but a following step failed, offers to finish it, so that the user does not enter it again.
 */
bool PurchasingListTab::stands(bool done, const KorEntity& document)
{
    auto* documents = businessAs<PurchasingService>();
    if (done || !documents->documentStands())
        return done;
    UnfinishedSave{UnfinishedSave::saved(document.property("No").toString()), documents->unfinished(),
                   UnfinishedSave::laterByOk(), [&] { return documents->finish(document); }}
        .offer(this, documents);
    return true;
}
