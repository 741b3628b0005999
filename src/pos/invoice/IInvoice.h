#pragma once

#include <QList>

class EntityInvoiceDetail;
class Invoice;

/** The interface of a link record for the sales service, for every way of selling. */
class IInvoice
{
public:
    virtual ~IInvoice() = default;

    [[nodiscard]] virtual Invoice* getInvoice() const = 0;
    virtual void setInvoice(Invoice* invoice) = 0;
    [[nodiscard]] virtual QList<EntityInvoiceDetail*> getDetails() const = 0;
    virtual void setDetails(const QList<EntityInvoiceDetail*>& details) = 0;
};
