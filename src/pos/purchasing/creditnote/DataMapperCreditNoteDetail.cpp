#include "pos/purchasing/creditnote/DataMapperCreditNoteDetail.h"

#include "kor/entity/KorMetaDataMap.h"
#include "pos/purchasing/creditnote/DataMapperCreditNote.h"

DataMapperCreditNoteDetail::DataMapperCreditNoteDetail(DataMapperCreditNote* notes, const ItemPartners& partners)
    : ItemLineMapper(notes)
{
    setName("credit note detail");
    metaData()->setTableName("credit_note_detail");
    documentColumn("credit_note_id", "CreditNoteId", notes);
    itemColumn(partners);
    column("qty", "integer not null", "Qty");
    column("qty_returned", "integer not null", "QtyReturned");
    column("acquisition_detail_id", "integer null", "AcquisitionDetailId");
    moneyColumns("price_each", "PriceEach");
    moneyColumns("discount", "Discount");
    moneyColumns("total_price", "TotalPrice");
    column("discount_percentage", "numeric not null", "DiscountPercentage");
}

KorEntity* DataMapperCreditNoteDetail::createEntity() { return new EntityCreditNoteDetail(entityParent()); }

QStringList DataMapperCreditNoteDetail::indexStatements() const { return lineIndexes("qty_returned"); }
