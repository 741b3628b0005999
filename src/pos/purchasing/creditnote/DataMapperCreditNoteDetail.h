#pragma once

#include "pos/masterdata/item/ItemLineMapper.h"

class DataMapperCreditNote;

/** The lines of credit notes, in the table "credit_note_detail". */
class DataMapperCreditNoteDetail final : public ItemLineMapper
{
    Q_OBJECT

public:
    DataMapperCreditNoteDetail(DataMapperCreditNote* notes, const ItemPartners& partners);

    KorEntity* createEntity() override;
    [[nodiscard]] QStringList indexStatements() const override;
};
