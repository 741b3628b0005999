#pragma once

#include "app/numbers/NumberedMapper.h"
#include "masterdata/itemline/ItemLineMapper.h"
#include "purchasing/creditnote/EntityCreditNote.h"

class DataMapperBank;
class DataMapperSupplier;

/** Credit notes with their lines, in the tables "credit_note" and "credit_note_detail". */
class DataMapperCreditNote final : public NumberedDocumentMapper<EntityCreditNote>
{
    Q_OBJECT

public:
    DataMapperCreditNote(QObject* parent, DataMapperKey* keys, DataMapperSupplier* suppliers, DataMapperBank* accounts,
                         ItemPartners partners);

    [[nodiscard]] QString keyName() const override { return "NR"; }
    KorEntity* createEntity() override;
    [[nodiscard]] QStringList indexStatements() const override;
    [[nodiscard]] KorDataMapper* lineMapper() const override { return m_lines; }

protected:
    [[nodiscard]] const Messages& messages() const override;
    void attachLine(KorEntity* line, int documentId) override;

private:
    KorDataMapper* m_lines;
};
