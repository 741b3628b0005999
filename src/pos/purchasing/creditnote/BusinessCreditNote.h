#pragma once

#include "pos/purchasing/creditnote/EntityCreditNote.h"
#include "pos/purchasing/document/PurchasingFilter.h"
#include "pos/purchasing/document/StockDocumentService.h"

class BusinessPurchases;
class DataMapperCreditNote;

/** The service of credit notes. Money refunded for a purchase reduces what is due for it. */
class BusinessCreditNote final : public StockDocumentService
{
    Q_OBJECT

public:
    enum PERMISSIONS {
        INSERT_CREDIT_NOTE,
        UPDATE_CREDIT_NOTE,
        DELETE_CREDIT_NOTE,
        INSERT_CREDIT_NOTE_DETAIL,
        UPDATE_CREDIT_NOTE_DETAIL,
        DELETE_CREDIT_NOTE_DETAIL
    };
    Q_ENUM(PERMISSIONS)

    BusinessCreditNote(QObject* parent, DataMapperCreditNote* notes, DataMapperItemHistory* journal,
                       BusinessPurchases* purchases);

    [[nodiscard]] QList<KorPermission> getPermissions() const override;
    [[nodiscard]] QString unfinished() const override;

    /** Without lines, for lists; find(id) reads a note with its lines. */
    [[nodiscard]] QList<EntityCreditNote*> findAll(const PurchasingFilter& filter);

    /** The quantity of this purchase line that other notes have already returned. */
    [[nodiscard]] int returnedElsewhere(const EntityCreditNoteDetail& line);

    /** Sets the status by the amount paid; called before every save. A cancelled note keeps its status. */
    static void updateStatus(EntityCreditNote& note);
    /** Recalculates what is due for the note's purchase, if it has one. */
    bool updatePurchaseNetDue(const EntityCreditNote& note);

protected:
    void beforeSave(KorEntity& note) override;
    bool afterSave(const KorEntity& note, Save kind) override;
    [[nodiscard]] QList<KorEntity*> linesOf(const KorEntity& note) const override;
    [[nodiscard]] QList<KorEntity*> removedLinesOf(const KorEntity& note) const override;
    [[nodiscard]] ItemMovement movementOf(const KorEntity& note, const KorEntity& line) const override;
    [[nodiscard]] QString notBegunText() const override { return tr("create transaction failed"); }

private:
    bool recalculateDue(int purchaseId);

    DataMapperCreditNote* m_notes;
    BusinessPurchases* m_purchases;
    // The purchase of the note before the current save.
    int m_formerPurchaseId = KorNoValue;
};
