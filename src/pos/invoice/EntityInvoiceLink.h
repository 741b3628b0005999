#pragma once

#include "pos/invoice/IInvoice.h"
#include "pos/invoice/Invoice.h"

#include <optional>

/** Links an invoice to its way of selling. A new link has a new invoice; the lines are borrowed. */
class EntityInvoiceLink : public KorEntity, public IInvoice
{
    Q_OBJECT
    Q_PROPERTY(Invoice* Invoice READ getInvoice WRITE setInvoice)

public:
    explicit EntityInvoiceLink(QObject* parent = nullptr) : KorEntity(parent), m_invoice(new class Invoice(this)) {}

    [[nodiscard]] class Invoice* getInvoice() const override { return m_invoice; }
    void setInvoice(class Invoice* invoice) override { m_invoice = invoice; }
    [[nodiscard]] QList<EntityInvoiceDetail*> getDetails() const override { return m_details; }
    void setDetails(const QList<EntityInvoiceDetail*>& details) override { m_details = details; }

    /**
     * Invoice ids of the order's known bills. If the order has any other bill, the first save of this sale fails. Not
     * set: no check.
     */
    [[nodiscard]] const std::optional<QList<int>>& knownBills() const { return m_knownBills; }
    void setKnownBills(const QList<int>& invoiceIds) { m_knownBills = invoiceIds; }

private:
    class Invoice* m_invoice;
    QList<EntityInvoiceDetail*> m_details;
    std::optional<QList<int>> m_knownBills;
};
