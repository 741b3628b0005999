#include "pos/purchasing/document/SourceLinesTab.h"

#include "kor/business/KorBusinessLogic.h"
#include "kor/business/KorErrorScope.h"
#include "kor/business/KorServiceDirectory.h"
#include "kor/widgets/KorDialog.h"
#include "kor/widgets/KorErrorBox.h"
#include "pos/masterdata/supplier/EntitySupplier.h"
#include "pos/purchasing/document/SelectDocumentDialog.h"

#include <QHash>
#include <QMessageBox>
#include <QPushButton>

SourceLinesTab::SourceLinesTab(const Source& source, QWidget* parent) : PurchasingLinesTab(parent), m_source(source)
{
    takeAddAway();
    QPushButton* select = addButton(source.buttonName, source.buttonText, ":/icons/browse.png");
    select->setShortcut(Qt::Key_F12);
    select->setToolTip(source.buttonTip);
    connect(select, &QPushButton::clicked, this, &SourceLinesTab::selectSource);
}

void SourceLinesTab::setSourceLines(int sourceId, const Lines& lines)
{
    m_sourceId = sourceId;
    m_sourceSupplierId = m_supplier ? m_supplier->getId() : KorNoValue;
    setLines(lines);
}

int SourceLinesTab::sourceId() const { return lines().isEmpty() ? KorNoValue : m_sourceId; }

bool SourceLinesTab::isOfOtherSupplier() const
{
    return !lines().isEmpty() && m_supplier && m_supplier->getId() != m_sourceSupplierId;
}

void SourceLinesTab::selectSource()
{
    if (!m_supplier) {
        QMessageBox::information(this, tr("Info"), tr("Please select a supplier"));
        return;
    }
    const auto dialog = createSelection(m_supplier);
    if (dialog->exec() != QDialog::Accepted)
        return;
    const EntityPoolScope scope(pool());
    KorBusinessLogic* documents = KorServiceDirectory::get(m_source.serviceName);
    KorErrorScope errors(documents);
    if (const KorEntity* document = documents->find(dialog->selectedId()))
        takeSource(*document);
    else if (!KorErrorBox::tell(this, errors.take()))
        QMessageBox::information(this, KorDialog::tr("Error"), m_source.notFound.arg(dialog->selectedId()));
    focusLines();
}

void SourceLinesTab::takeSource(const KorEntity& document)
{
    m_sourceId = document.getId();
    m_sourceSupplierId = m_supplier->getId();
    // Keep the values already entered for lines of the same document.
    QHash<int, KorEntity*> present;
    for (KorEntity* line : lines())
        present.insert(sourceLineOf(*line), line);
    Lines taken;
    const QList<EntityPurchasingLine*> sources = linesOfSource(document);
    for (const EntityPurchasingLine* source : sources) {
        KorEntity* line = present.value(source->getId());
        if (!line) {
            line = createLine();
            line->setParent(this);
            auto* added = static_cast<EntityPurchasingLine*>(line);
            added->setItem(source->getItem());
            fillFrom(added, *source);
        }
        taken.append(line);
    }
    replaceLines(taken);
}
