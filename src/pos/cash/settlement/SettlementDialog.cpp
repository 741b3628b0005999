#include "pos/cash/settlement/SettlementDialog.h"

#include "app/context/AppContext.h"
#include "app/money/Money.h"
#include "app/widgets/AppLinesTab.h"
#include "app/widgets/MoneyEdit.h"
#include "app/widgets/RecordField.h"
#include "kor/business/KorErrorScope.h"
#include "pos/cash/settlement/EntitySettlement.h"
#include "pos/cash/settlement/SettlementTab.h"
#include "pos/masterdata/account/AccountField.h"
#include "pos/masterdata/contact/EntityContact.h"

#include <QDateEdit>
#include <QDialogButtonBox>
#include <QLabel>
#include <QShortcut>
#include <QTabWidget>

#include <algorithm>
#include <limits>

void SettlementDialog::setUpSettlement(const Boxes& boxes, const Words& words, SettlementTab* page,
                                       KorBusinessLogic* documents)
{
    m_boxes = boxes;
    m_words = words;
    m_page = page;
    m_documents = documents;
    m_account = new AccountField(boxes.account, boxes.accountName, this);
    m_boxes.date->setDisplayFormat(AppContext::instance()->dateFormat());
    m_boxes.date->setDate(QDate::currentDate());
    makeTouchable(m_boxes.buttons);
    m_boxes.person->lookUpWhenLeft();
    connect(m_boxes.person, &RecordFieldBase::chosen, m_boxes.person, &RecordFieldBase::writeCode);
    connect(m_boxes.person, &RecordFieldBase::changed, this, [this] { showPerson(person()); });
    connect(m_boxes.person, &RecordFieldBase::chosen, this, [this] { showError(readLinesOfAnother()); });
    connect(m_boxes.person, &RecordFieldBase::unread, this, &SettlementDialog::showError);
    connect(m_page, &SettlementTab::Paid, this, &SettlementDialog::showTotal);
    connect(new QShortcut(Qt::Key_F3, this), &QShortcut::activated, this, &SettlementDialog::onTabInvoicesSelected);
    m_page->setLines({});
}

void SettlementDialog::addLinesPage(AppLinesTab* page, Qt::Key key)
{
    connect(page, &AppLinesTab::ItemAdded, this, &SettlementDialog::showTotal);
    connect(new QShortcut(key, this), &QShortcut::activated, this, [this, page] {
        m_boxes.pages->setCurrentWidget(page);
        page->focusLines();
    });
}

void SettlementDialog::onTabInvoicesSelected()
{
    m_boxes.pages->setCurrentWidget(m_page);
    m_page->focusGrid();
}

// --- the person ----------------------------------------------------------------------------------------------------

EntityContact* SettlementDialog::person() const { return static_cast<EntityContact*>(m_boxes.person->entity()); }

void SettlementDialog::readAgain() { showError(readLines()); }

void SettlementDialog::takePerson(EntityContact* person)
{
    m_boxes.person->show(person);
    readAgain();
}

void SettlementDialog::checkPerson()
{
    m_boxes.person->check(m_words.noPerson, m_words.noPerson);
    if (!m_boxes.person->couldAsk())
        return;
    const QString failure = readLinesOfAnother();
    if (!failure.isEmpty())
        addError(m_boxes.person->box()->editor(), failure.trimmed());
}

QString SettlementDialog::readLinesOfAnother()
{
    // A choice from the list is reported twice: when the focus leaves the field, and as the choice.
    return m_boxes.person->id() == m_readForId ? QString() : readLines();
}

QString SettlementDialog::readLines()
{
    EntityPool read;
    QList<KorEntity*> lines;
    KorErrorScope errors(m_documents);
    if (person()) {
        const EntityPoolScope scope(read);
        lines = readOpenLines(*person());
    }
    m_readForId = errors.failed() ? KorNoValue : m_boxes.person->id();
    if (person() && m_boxes.person->id() == m_storedPersonId) {
        // A stored line replaces the open line of its document, and is shown even if nothing is open any more.
        for (KorEntity* stored : qAsConst(m_stored)) {
            // Two stored lines may have the same document: neither replaces the other.
            const auto same = std::find_if(lines.begin(), lines.end(), [this, stored](KorEntity* line) {
                return !m_stored.contains(line) && documentIdOf(*line) == documentIdOf(*stored);
            });
            if (same == lines.end())
                lines.append(stored);
            else
                *same = stored;
        }
    }
    m_page->setLines(lines);
    m_open.swap(read);
    return errors.take();
}

void SettlementDialog::showStored(EntityContact* person, const QList<KorEntity*>& lines, bool offerOthers)
{
    m_stored = lines;
    m_storedPersonId = person->getId();
    if (offerOthers) {
        takePerson(person);
        return;
    }
    m_boxes.person->show(person);
    m_readForId = person->getId();
    m_page->setLines(lines);
}

KorEntity* SettlementDialog::getEntity()
{
    KorDialog::getEntity();
    auto* settlement = held<EntitySettlement>();
    settlement->setGrandTotal(m_boxes.total->money());
    return settlement;
}

QList<KorEntity*> SettlementDialog::removedLines(const QList<KorEntity*>& taken) const
{
    QList<KorEntity*> removed;
    for (KorEntity* line : m_stored) {
        if (!taken.contains(line))
            removed.append(line);
    }
    return removed;
}

// --- the money -----------------------------------------------------------------------------------------------------

qint64 SettlementDialog::sum() const
{
    qint64 total = furtherAmount();
    for (const KorEntity* line : m_page->lines())
        total += amountOf(*line)->rawAmount();
    return total;
}

void SettlementDialog::showTotal()
{
    const QList<KorEntity*>& lines = m_page->lines();
    Money total(nullptr, 0, lines.isEmpty() ? m_boxes.total->currency() : amountOf(*lines.first())->getCurrency());
    total.setRawAmount(static_cast<double>(sum()));
    m_boxes.total->setMoney(&total);
    totalChanged();
}

void SettlementDialog::checkLines()
{
    if (m_page->lines().isEmpty())
        addError(m_boxes.pages, m_words.noDocument);
    else if (const KorEntity* line = lineWithoutAmount())
        addError(m_boxes.pages, m_words.unpaidDocument.arg(documentNoOf(*line)));
}

bool SettlementDialog::validate()
{
    checkPerson();
    // If the database does not answer, report that once and not per field.
    if (!m_boxes.person->couldAsk() || m_boxes.person->id() != m_readForId)
        return false;
    checkLines();
    if (sum() > std::numeric_limits<int>::max())
        addError(m_boxes.pages, tr("The total is larger than a payment can hold. Please check the figures."));
    checkAmounts();
    m_account->check(m_words.noAccount, m_words.unknownAccount);
    return !hasError();
}
