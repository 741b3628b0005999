#pragma once

#include "sales/invoice/IInvoice.h"
#include "sales/invoice/Invoice.h"
#include "sales/order/EntityMakanDitempat.h"

/** Ties an invoice to the order on a table; an order that is paid apart has several. */
class EntityInvoiceMakanDitempat final : public KorEntity, public IInvoice
{
    Q_OBJECT
    Q_PROPERTY(Invoice* Invoice READ getInvoice WRITE setInvoice)
    KOR_REFERENCE(EntityMakanDitempat, MakanDitempat)
    KOR_REFERENCE(EntityEmployee, Employee)
    KOR_REFERENCE(EntityAgent, Agent)
    KOR_PROPERTY(QDate, DueDate, QDate())

public:
    explicit EntityInvoiceMakanDitempat(QObject* parent = nullptr)
        : KorEntity(parent), m_invoice(new class Invoice(this))
    {}

    [[nodiscard]] class Invoice* getInvoice() const override { return m_invoice; }
    void setInvoice(class Invoice* invoice) override { m_invoice = invoice; }
    [[nodiscard]] QList<EntityInvoiceDetail*> getDetails() const override { return m_details; }
    void setDetails(const QList<EntityInvoiceDetail*>& details) override { m_details = details; }

private:
    class Invoice* m_invoice;
    QList<EntityInvoiceDetail*> m_details;
};
