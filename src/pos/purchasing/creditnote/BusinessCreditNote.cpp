#include "pos/purchasing/creditnote/BusinessCreditNote.h"

#include "kor/business/KorErrorScope.h"
#include "pos/inventory/stock/EntityItemHistory.h"
#include "pos/purchasing/creditnote/DataMapperCreditNote.h"
#include "pos/purchasing/purchase/BusinessPurchases.h"

namespace
{
const EntityCreditNote& asNote(const KorEntity& entity) { return static_cast<const EntityCreditNote&>(entity); }
} // namespace

BusinessCreditNote::BusinessCreditNote(QObject* parent, DataMapperCreditNote* notes, DataMapperItemHistory* journal,
                                       BusinessPurchases* purchases)
    : StockDocumentService("Credit Note", notes, journal, parent), m_notes(notes), m_purchases(purchases)
{}

QList<KorPermission> BusinessCreditNote::getPermissions() const
{
    return {{INSERT_CREDIT_NOTE, tr("Insert Credit Note")},
            {UPDATE_CREDIT_NOTE, tr("Update Credit Note")},
            {DELETE_CREDIT_NOTE, tr("Delete Credit Note")},
            {INSERT_CREDIT_NOTE_DETAIL, tr("Insert Credit Note Detail")},
            {UPDATE_CREDIT_NOTE_DETAIL, tr("Update Credit Note Detail")},
            {DELETE_CREDIT_NOTE_DETAIL, tr("Delete Credit Note Detail")}};
}

QList<EntityCreditNote*> BusinessCreditNote::findAll(const PurchasingFilter& filter)
{
    return read(m_notes->findAll(filter), m_notes, "findall");
}

int BusinessCreditNote::returnedElsewhere(const EntityCreditNoteDetail& line)
{
    return read(m_notes->returnedElsewhere(line), m_notes, "returnedElsewhere");
}

// --- saving --------------------------------------------------------------------------------------------------------

void BusinessCreditNote::updateStatus(EntityCreditNote& note)
{
    if (note.getStatus() == EntityCreditNote::CANCELLED)
        return;
    const bool isPaid = note.getAmountPaid()->rawAmount() >= note.getGrandTotal()->rawAmount();
    note.setStatus(isPaid ? EntityCreditNote::FULL_PAID : EntityCreditNote::PARTIALLY_PAID);
}

void BusinessCreditNote::beforeSave(KorEntity& note)
{
    updateStatus(static_cast<EntityCreditNote&>(note));
    m_formerPurchaseId = note.isSaved() ? m_notes->purchaseOf(note.getId()) : KorNoValue;
}

bool BusinessCreditNote::afterSave(const KorEntity& note, Save kind)
{
    bool done = updatePurchaseNetDue(asNote(note));
    // A note that was moved to another purchase no longer counts for the former one.
    if (m_formerPurchaseId != asNote(note).getAcquisitionId())
        done = recalculateDue(m_formerPurchaseId) && done;
    return StockDocumentService::afterSave(note, kind) && done;
}

QString BusinessCreditNote::unfinished() const
{
    const bool lacksDue = errors().contains("updatePurchaseNetDue");
    const QString due = tr("what is still due of its purchase");
    const QString rows = StockDocumentService::unfinished();
    if (lacksDue && errors().size() > 1)
        return due + ", " + rows;
    return lacksDue ? due : rows;
}

bool BusinessCreditNote::updatePurchaseNetDue(const EntityCreditNote& note)
{
    return recalculateDue(note.getAcquisitionId());
}

bool BusinessCreditNote::recalculateDue(int purchaseId)
{
    KorErrorScope errors(m_purchases);
    if (purchaseId == KorNoValue || m_purchases->recalculateDue(purchaseId))
        return true;
    addError("updatePurchaseNetDue", errors.take().trimmed());
    return false;
}

QList<KorEntity*> BusinessCreditNote::linesOf(const KorEntity& note) const
{
    return asEntities(asNote(note).getDetails());
}

QList<KorEntity*> BusinessCreditNote::removedLinesOf(const KorEntity& note) const
{
    return asEntities(asNote(note).getRemovedDetails());
}

ItemMovement BusinessCreditNote::movementOf(const KorEntity& note, const KorEntity& line) const
{
    const auto& returned = static_cast<const EntityCreditNoteDetail&>(line);
    return {EntityItemHistory::CREDIT_NOTE, returned.getId(),        returned.getItem(),     0,
            returned.getQtyReturned(),      returned.getPriceEach(), asNote(note).getDate(), asNote(note).getNo()};
}
