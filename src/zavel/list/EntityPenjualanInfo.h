#pragma once

#include "app/context/EntityUser.h"
#include "pos/invoice/Invoice.h"
#include "pos/masterdata/member/EntityMember.h"

/** One sale of any kind in the list of all sales. Only read, never stored. */
class EntityPenjualanInfo : public KorEntity
{
    Q_OBJECT
    KOR_REFERENCE(EntityUser, User)
    KOR_REFERENCE(EntityMember, Member)
    KOR_PROPERTY(QString, Pemesan, QString())
    MONEY_PROPERTY(GrandTotal)
    MONEY_PROPERTY(AmountPaid)
    MONEY_PROPERTY(NetDue)
    MONEY_PROPERTY(OtherPayment)

public:
    using KorEntity::KorEntity;

    [[nodiscard]] Invoice* getInvoice() const { return m_invoice; }
    void setInvoice(Invoice* invoice) { m_invoice = invoice; }
    /** The kind of sale, as shown to the user. */
    [[nodiscard]] const QString& typeName() const { return m_typeName; }
    void setTypeName(const QString& name) { m_typeName = name; }
    [[nodiscard]] EntityEmployee* waitress() const { return m_waitress; }
    void setWaitress(EntityEmployee* waitress) { m_waitress = waitress; }
    /** The agent who brought the guests; KorNoValue if there is none. */
    [[nodiscard]] int agentId() const { return m_agentId; }
    void setAgentId(int id) { m_agentId = id; }

private:
    Invoice* m_invoice = nullptr;
    QString m_typeName;
    EntityEmployee* m_waitress = nullptr;
    int m_agentId = KorNoValue;
};
