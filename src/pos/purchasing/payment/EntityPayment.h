#pragma once

#include "app/persistence/AppDocumentLines.h"
#include "pos/cash/settlement/PaymentType.h"
#include "pos/purchasing/payment/EntityPaymentExpenses.h"
#include "pos/purchasing/payment/EntityPaymentInvoices.h"

/** Money paid to a supplier, for purchases and for expenses. */
class EntityPayment : public KorEntity
{
    Q_OBJECT

public:
    enum PAYMENT_TYPE { CASH = PaymentType::Cash, ELECTRONIC = PaymentType::Electronic, CHECK = PaymentType::Check };
    Q_ENUM(PAYMENT_TYPE)

    KOR_PROPERTY(int, PaymentType, CASH)
    KOR_REFERENCE(EntitySupplier, Supplier)
    KOR_PROPERTY(QString, No, QString(""))
    KOR_PROPERTY(QString, CheckNo, QString())
    KOR_PROPERTY(QDate, Date, QDate())
    KOR_PROPERTY(QString, Note, QString())
    MONEY_PROPERTY(GrandTotal)
    KOR_REFERENCE(EntityBank, Bank)
    KOR_PROPERTY(QString, NoRef, QString())

public:
    using KorEntity::KorEntity;

    [[nodiscard]] AppDocumentLines<EntityPaymentInvoices>& invoices() { return m_invoices; }
    [[nodiscard]] const AppDocumentLines<EntityPaymentInvoices>& invoices() const { return m_invoices; }
    [[nodiscard]] AppDocumentLines<EntityPaymentExpenses>& expenses() { return m_expenses; }
    [[nodiscard]] const AppDocumentLines<EntityPaymentExpenses>& expenses() const { return m_expenses; }

private:
    AppDocumentLines<EntityPaymentInvoices> m_invoices;
    AppDocumentLines<EntityPaymentExpenses> m_expenses;
};
