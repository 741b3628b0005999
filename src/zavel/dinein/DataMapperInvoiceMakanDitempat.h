#pragma once

#include "pos/invoice/DataMapperInvoiceLink.h"

class DataMapperMakanDitempat;
class EntityInvoiceMakanDitempat;

/** The invoices of orders on tables, in "invoice_makan_ditempat". */
class DataMapperInvoiceMakanDitempat final : public DataMapperInvoiceLink
{
    Q_OBJECT

public:
    DataMapperInvoiceMakanDitempat(QObject* parent, DataMapperInvoice* invoices, DataMapperMakanDitempat* orders);

    KorEntity* createEntity() override;
    [[nodiscard]] QStringList indexStatements() const override;
    [[nodiscard]] QString keyName() const override;

    /** All invoices of the order with their lines, in a fixed number of statements. */
    [[nodiscard]] QList<EntityInvoiceMakanDitempat*> findByOrder(int orderId);
    /** The same without lines and without the order, in one statement: enough to add up amounts. */
    [[nodiscard]] QList<EntityInvoiceMakanDitempat*> findMoneyOfOrder(int orderId);

protected:
    [[nodiscard]] Messages messages() const override;
    [[nodiscard]] std::optional<BilledOrder> billedOrder(const KorEntity& link) const override;
    void prepareInvoice(KorEntity* link, Invoice* invoice) override;
    bool loadOrders(const QList<KorEntity*>& links) override;

private:
    DataMapperMakanDitempat* m_orders;
};
