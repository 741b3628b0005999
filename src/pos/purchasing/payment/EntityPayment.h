#pragma once

#include "app/persistence/AppDocumentLines.h"
#include "pos/cash/settlement/EntitySettlement.h"
#include "pos/purchasing/payment/EntityPaymentExpenses.h"
#include "pos/purchasing/payment/EntityPaymentInvoices.h"

/** Money paid to a supplier, for purchases and for expenses. */
class EntityPayment : public EntityPartSettlement
{
    Q_OBJECT

public:
    enum PAYMENT_TYPE { CASH = PaymentType::Cash, ELECTRONIC = PaymentType::Electronic, CHECK = PaymentType::Check };
    Q_ENUM(PAYMENT_TYPE)

    KOR_REFERENCE(EntitySupplier, Supplier)

public:
    using EntityPartSettlement::EntityPartSettlement;

    [[nodiscard]] AppDocumentLines<EntityPaymentInvoices>& invoices() { return m_invoices; }
    [[nodiscard]] const AppDocumentLines<EntityPaymentInvoices>& invoices() const { return m_invoices; }
    [[nodiscard]] AppDocumentLines<EntityPaymentExpenses>& expenses() { return m_expenses; }
    [[nodiscard]] const AppDocumentLines<EntityPaymentExpenses>& expenses() const { return m_expenses; }

private:
    AppDocumentLines<EntityPaymentInvoices> m_invoices;
    AppDocumentLines<EntityPaymentExpenses> m_expenses;
};
