#pragma once

#include "app/numbers/NumberedMapper.h"
#include "pos/invoice/DataMapperInvoice.h"

#include <optional>

class IInvoice;

/**
 * Mapper of the record that links an invoice to its way of selling. Saving writes the invoice, the link and the lines
 * in one transaction; an update replaces the lines. Removing deletes only the link row. The key of the running number
 * is also the type of the invoice.
 */
class DataMapperInvoiceLink : public NumberedMapper<DataMapperInvoice>
{
    Q_OBJECT

public:
    DataMapperInvoiceLink(QObject* parent, DataMapperInvoice* invoices);

    bool insert(KorEntity* link) override;
    bool update(KorEntity* link) override;
    bool createTable(int mode) override;
    [[nodiscard]] QList<KorDataMapper*> lineMappers() const override { return {}; }

    [[nodiscard]] KorEntity* findById(int id) override;
    [[nodiscard]] KorEntity* findByInvoiceId(int invoiceId);

protected:
    using Messages = AppDocumentMapper::Messages;
    [[nodiscard]] virtual Messages messages() const = 0;
    /** The order that a new sale bills. */
    struct BilledOrder
    {
        const KorDataMapper* orders;
        /** The link's column with the order's id. */
        QString column;
        int id;
        /** Ids of the invoices that the user knows of. If there is another one, the sale is refused. */
        QList<int> knownBills;
    };
    /** Empty if the sale has no order, or if it is not set which bills are known. */
    [[nodiscard]] virtual std::optional<BilledOrder> billedOrder(const KorEntity& link) const;
    /** Copies values from the link to the invoice before it is saved. */
    virtual void prepareInvoice(KorEntity* link, Invoice* invoice);
    /** Reads further records of the links, for a whole list at once; for example the orders. */
    virtual bool loadOrders(const QList<KorEntity*>& links);

    /** Links with invoice, lines and order; the number of statements does not depend on the number of links. */
    QList<KorEntity*> findLinks(const KorConditions& conditions);
    /** The links of one order, oldest first. */
    [[nodiscard]] KorConditions linksOf(const QString& orderColumn, int orderId) const;
    [[nodiscard]] DataMapperInvoice* invoices() const { return m_invoices; }

private:
    /** The error text if the order has an unknown bill; empty otherwise. */
    [[nodiscard]] static QString objection(const std::optional<BilledOrder>& order, const QVariantList& foundBills);
    [[nodiscard]] QStringList locksOfInsert(const std::optional<BilledOrder>& order) const;
    void insertLinesWith(KorBatch& batch, IInvoice* sale);
    bool insertInvoice(KorEntity* link, QString* reason);
    bool replaceLines(IInvoice* sale, QString* reason);
    bool load(const QList<KorEntity*>& links);
    static IInvoice* saleOf(KorEntity* link);

    DataMapperInvoice* m_invoices;
};
