#pragma once

#include <QList>

class EntityInvoiceDetail;
class Invoice;

/** What the sales service asks of a link record, whatever the way of selling. */
class IInvoice
{
public:
    virtual ~IInvoice() = default;

    [[nodiscard]] virtual Invoice* getInvoice() const = 0;
    virtual void setInvoice(Invoice* invoice) = 0;
    [[nodiscard]] virtual QList<EntityInvoiceDetail*> getDetails() const = 0;
    virtual void setDetails(const QList<EntityInvoiceDetail*>& details) = 0;
};
