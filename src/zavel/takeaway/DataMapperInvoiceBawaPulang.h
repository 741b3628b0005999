#pragma once

#include "pos/invoice/DataMapperInvoiceLink.h"

class DataMapperBawaPulang;
class EntityInvoiceBawaPulang;

/** The invoices of orders to take away, in "invoice_bawa_pulang". */
class DataMapperInvoiceBawaPulang final : public DataMapperInvoiceLink
{
    Q_OBJECT

public:
    DataMapperInvoiceBawaPulang(QObject* parent, DataMapperInvoice* invoices, DataMapperBawaPulang* orders);

    KorEntity* createEntity() override;
    [[nodiscard]] QStringList indexStatements() const override;
    [[nodiscard]] QString keyName() const override;

    /** The invoices of the order with their lines, in a fixed number of statements. */
    [[nodiscard]] QList<EntityInvoiceBawaPulang*> findByOrder(int orderId);

protected:
    [[nodiscard]] Messages messages() const override;
    [[nodiscard]] std::optional<BilledOrder> billedOrder(const KorEntity& link) const override;
    bool loadOrders(const QList<KorEntity*>& links) override;

private:
    DataMapperBawaPulang* m_orders;
};
