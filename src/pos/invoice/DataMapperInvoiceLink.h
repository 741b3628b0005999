#pragma once

#include "app/numbers/NumberedMapper.h"
#include "pos/invoice/DataMapperInvoice.h"

#include <optional>

class IInvoice;

/**
 * Mapper of the record that ties an invoice to its way of selling. Saving writes the invoice, the link and the lines
 * in one transaction; an update replaces the lines. Removing takes the link row alone. The key of the running number is
 * also the type that the invoice gets.
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
    /** The order that a new sale is the bill of. */
    struct BilledOrder
    {
        const KorDataMapper* orders;
        /** The link's column that refers to the order. */
        QString column;
        int id;
        /** The invoices of which the sale knows; with any other one it is refused. */
        QList<int> knownBills;
    };
    /** Nothing where the sale has no order, or does not say which bills it knows. */
    [[nodiscard]] virtual std::optional<BilledOrder> billedOrder(const KorEntity& link) const;
    /** What the link knows and the invoice keeps too, before it is written. */
    virtual void prepareInvoice(KorEntity* link, Invoice* invoice);
    /** Reads what stands behind a link beside the invoice and the lines; for all links of a list at once. */
    virtual bool loadOrders(const QList<KorEntity*>& links);

    /** Each with its full invoice, its lines and its order: a fixed number of statements. */
    QList<KorEntity*> findLinks(const KorConditions& conditions);
    /** The links of one order, the oldest first. */
    [[nodiscard]] KorConditions linksOf(const QString& orderColumn, int orderId) const;
    [[nodiscard]] DataMapperInvoice* invoices() const { return m_invoices; }

private:
    /** Where another bill of the order was found, the words for it. */
    [[nodiscard]] static QString objection(const std::optional<BilledOrder>& order, const QVariantList& foundBills);
    [[nodiscard]] QStringList locksOfInsert(const std::optional<BilledOrder>& order) const;
    void insertLinesWith(KorBatch& batch, IInvoice* sale);
    bool insertInvoice(KorEntity* link, QString* reason);
    bool replaceLines(IInvoice* sale, QString* reason);
    bool load(const QList<KorEntity*>& links);
    static IInvoice* saleOf(KorEntity* link);

    DataMapperInvoice* m_invoices;
};
