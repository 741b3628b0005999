#pragma once

#include "pos/purchasing/creditnote/EntityCreditNote.h"
#include "pos/purchasing/document/PurchasingDocumentMapper.h"

class DataMapperBank;
class DataMapperSupplier;

/** Credit notes with their lines, in the tables "credit_note" and "credit_note_detail". */
class DataMapperCreditNote final : public PurchasingDocumentMapper<EntityCreditNote>
{
    Q_OBJECT

public:
    DataMapperCreditNote(QObject* parent, DataMapperKey* keys, DataMapperSupplier* suppliers, DataMapperBank* accounts,
                         ItemPartners partners);

    [[nodiscard]] QString keyName() const override { return "NR"; }
    KorEntity* createEntity() override;
    [[nodiscard]] QStringList indexStatements() const override;

    /** The notes for the purchase, without lines. */
    [[nodiscard]] QList<EntityCreditNote*> findByAcquisition(int purchaseId);
    /** The purchase of the stored note; KorNoValue if it has none. */
    [[nodiscard]] int purchaseOf(int noteId);
    /** The quantity of this purchase line that other notes, except cancelled ones, have already returned. */
    [[nodiscard]] int returnedElsewhere(const EntityCreditNoteDetail& line);

protected:
    [[nodiscard]] const Messages& messages() const override;
    [[nodiscard]] PurchasingColumns filterColumns() const override;
};
