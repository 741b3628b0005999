#pragma once

#include "pos/masterdata/member/EntityMember.h"
#include "zavel/order/EntityOrder.h"

class EntityInvoiceDetail;

/** A sale over the counter while it is being keyed in. It has no table: stored are the invoice and its lines. */
class EntityFastFood final : public KorEntity
{
    Q_OBJECT
    KOR_REFERENCE(EntityMember, Member)
    /** The guest's name. */
    KOR_PROPERTY(QString, Pemesan, QString())
    KOR_PROPERTY(QDate, Tgl, QDate())

public:
    using Lines = EntityOrder::Lines;
    using KorEntity::KorEntity;

    /** The lines of a stored invoice as lines that can be changed; they belong to the sale. */
    [[nodiscard]] Lines takeLines(const QList<EntityInvoiceDetail*>& stored);
    /** What was keyed in, as the invoice has it: at the total that the guest was told. */
    void setLines(const Lines& lines);
    /** They live until the next lines are set. */
    [[nodiscard]] const QList<EntityInvoiceDetail*>& invoiceLines() const { return m_invoiceLines; }

private:
    QList<EntityInvoiceDetail*> m_invoiceLines;
};
