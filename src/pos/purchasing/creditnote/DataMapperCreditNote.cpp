#include "pos/purchasing/creditnote/DataMapperCreditNote.h"

#include "kor/entity/KorMetaDataMap.h"
#include "pos/masterdata/account/DataMapperBank.h"
#include "pos/masterdata/supplier/DataMapperSupplier.h"
#include "pos/purchasing/creditnote/DataMapperCreditNoteDetail.h"

DataMapperCreditNote::DataMapperCreditNote(QObject* parent, DataMapperKey* keys, DataMapperSupplier* suppliers,
                                           DataMapperBank* accounts, ItemPartners partners)
    : PurchasingDocumentMapper(parent, keys)
{
    setName("credit note");
    metaData()->setTableName("credit_note");
    column("credit_note_date", "date not null", "Date");
    column("note", "text null", "Note");
    reference("supplier_id", "integer not null", "Supplier", suppliers, "inner");
    column("no", "varchar(50) not null", "No");
    column("apply_to_invoice", "boolean not NULL", "IsApplyToInvoice");
    column("acquisition_id", "integer null", "AcquisitionId");
    moneyColumns("sub_total", "Subtotal");
    column("disc_perc", "numeric not NULL", "DiscountPercentage");
    moneyColumns("discount", "Discount");
    moneyColumns("grandtotal", "GrandTotal");
    moneyColumns("amount_paid", "AmountPaid");
    moneyColumns("change", "Change");
    column("status", "integer not NULL", "Status");
    // The inner join skips notes without an account; the form requires one.
    reference("bank_id", "integer null", "Bank", accounts, "inner");
    setLineMapper(new DataMapperCreditNoteDetail(this, partners));
}

KorEntity* DataMapperCreditNote::createEntity() { return new EntityCreditNote(entityParent()); }

QStringList DataMapperCreditNote::indexStatements() const
{
    return {index("credit_note_date", "(credit_note_date)"), index("acquisition_id", "(acquisition_id)"),
            index("supplier_id", "(supplier_id)"), index("bank_id", "(bank_id)")};
}

QList<EntityCreditNote*> DataMapperCreditNote::findByAcquisition(int purchaseId)
{
    return castAll<EntityCreditNote>(
        findMany(KorConditions().equals("acquisition_id", purchaseId).ascending("credit_note.id")));
}

int DataMapperCreditNote::purchaseOf(int noteId)
{
    KorQuery query;
    const bool found =
        execute(query, "select acquisition_id from credit_note where id = :id", {{":id", noteId}}) && query.next();
    return found && !query.value(0).isNull() ? query.value(0).toInt() : KorNoValue;
}

int DataMapperCreditNote::returnedElsewhere(const EntityCreditNoteDetail& line)
{
    KorQuery query;
    const bool done = execute(
        query,
        "select coalesce(sum(qty_returned), 0) from credit_note_detail inner join credit_note on credit_note.id "
        "= credit_note_detail.credit_note_id where acquisition_id = (select acquisition_id from "
        "acquisition_detail where id = :line) and acquisition_detail_id = :line and credit_note.id <> :note and "
        "status <> :cancelled",
        {{":line", line.getAcquisitionDetailId()},
         {":note", line.getCreditNoteId()},
         {":cancelled", int(EntityCreditNote::CANCELLED)}});
    return done && query.next() ? query.value(0).toInt() : 0;
}

PurchasingColumns DataMapperCreditNote::filterColumns() const
{
    // The supplier's number is that of the returned purchase.
    return {tableName(), "credit_note_date", "status", "no",
            "(select invoice_no from acquisition where acquisition.id = credit_note.acquisition_id)"};
}

const AppDocumentMapper::Messages& DataMapperCreditNote::messages() const
{
    static const Messages texts{
        tr("error: insert credit note failed"), tr("error: insert credit note detail failed.\r\n"),
        tr("error: update credit note failed"), tr("error: update credit note detail failed\r\n")};
    return texts;
}
