#pragma once

#include "pos/masterdata/member/EntityMember.h"
#include "zavel/order/EntityOrder.h"

class EntityInvoiceDetail;

/** A sale over the counter while it is being entered. It has no table; its invoice and the lines are stored. */
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

    /** The lines of a stored invoice as editable lines, owned by the sale. */
    [[nodiscard]] Lines takeLines(const QList<EntityInvoiceDetail*>& stored);
    /** Converts the entered lines into invoice lines, with the totals that the guest was shown. */
    void setLines(const Lines& lines);
    /** Valid until the next setLines(). */
    [[nodiscard]] const QList<EntityInvoiceDetail*>& invoiceLines() const { return m_invoiceLines; }

private:
    QList<EntityInvoiceDetail*> m_invoiceLines;
};
