#pragma once

#include "app/money/Money.h"
#include "kor/entity/KorEntity.h"
#include "pos/masterdata/agent/EntityAgent.h"
#include "pos/masterdata/employee/EntityEmployee.h"
#include "pos/masterdata/member/EntityMember.h"

/** The amounts of one sale, for every way of selling. A link record connects it to its order or counter sale. */
class Invoice : public KorEntity
{
    Q_OBJECT
    KOR_PROPERTY(QString, InvoiceNo, QString(""))
    KOR_PROPERTY(QDate, InvoiceDate, QDate())
    KOR_PROPERTY(QString, Note, QString())
    KOR_PROPERTY(QString, InvoiceType, QString(""))
    KOR_PROPERTY(int, Status, UNPAID)
    MONEY_PROPERTY(Subtotal)
    KOR_PROPERTY(double, DiscountPerc, 0.0)
    MONEY_PROPERTY(Discount)
    KOR_PROPERTY(double, TaxPerc, 0.0)
    MONEY_PROPERTY(Tax)
    MONEY_PROPERTY(GrandTotal)
    MONEY_PROPERTY(AmountPaid)
    /** Positive while money is owed, negative for change. */
    MONEY_PROPERTY(NetDue)
    MONEY_PROPERTY(OtherPayment)
    KOR_PROPERTY(double, ServicePerc, 0.0)
    MONEY_PROPERTY(Service)
    KOR_REFERENCE(EntityMember, Member)
    /** The guest's name. */
    KOR_PROPERTY(QString, Pemesan, QString())
    KOR_REFERENCE(EntityEmployee, Employee)
    /** Code of the cash account that received the money. */
    KOR_PROPERTY(QString, AcctCode, QString(""))

public:
    enum InvoiceStatus { FULL_PAID = 1, UNPAID = 2, PARTIALLY_PAID = 3 };
    Q_ENUM(InvoiceStatus)

    // The sale types, which are also the keys of their running numbers.
    static constexpr const char* Dine = "TRD";
    static constexpr const char* FastFood = "TRF";
    static constexpr const char* TakeAway = "TRP";

    using KorEntity::KorEntity;

    // Not stored here: the link record has the sale's agent.
    [[nodiscard]] EntityAgent* getAgent() const { return m_agent; }
    void setAgent(EntityAgent* agent) { m_agent = agent; }

private:
    EntityAgent* m_agent = nullptr;
};
