#pragma once

#include "pos/invoice/DataMapperInvoice.h"

#include <optional>

class IInvoice;

/**
 * Mapper of the record that ties an invoice to its way of selling. Saving writes the invoice, the link and the lines
 * in one transaction; an update replaces the lines. Removing takes the link row alone.
 */
class DataMapperInvoiceLink : public DataMapperInvoice
{
    Q_OBJECT

public:
    DataMapperInvoiceLink(QObject* parent, DataMapperInvoice* invoices);

    bool insert(KorEntity* link) override;
    bool update(KorEntity* link) override;
    bool createTable(int mode) override;
    [[nodiscard]] QList<KorDataMapper*> lineMappers() const override { return {}; }

    /** The key of the running number, which is also the type that the invoice gets. */
    [[nodiscard]] virtual QString keyName() const = 0;
    /** Null when no number could be drawn; the reason stands in the error text. */
    [[nodiscard]] QString nextNo();

    [[nodiscard]] KorEntity* findById(int id) override;
    [[nodiscard]] KorEntity* findByInvoiceId(int invoiceId);

protected:
    struct Messages
    {
        QString insertHeader;
        QString insertLines;
        QString updateHeader;
        QString updateLines;
    };
    [[nodiscard]] virtual Messages messages() const = 0;
    /** Asked inside the transaction before the first row of a new sale: what speaks against it, or nothing. */
    [[nodiscard]] virtual QString objection(const KorEntity& link);
    /**
     * The same for the bill of an order, which is held until the commit: a bill that the sale does not know of, where
     * it says which ones it knows.
     */
    [[nodiscard]] QString billedMeanwhile(const QString& orderTable, const QString& orderColumn, int orderId,
                                          const std::optional<QList<int>>& knownBills);
    /** What the link knows and the invoice keeps too, before it is written. */
    virtual void prepareInvoice(KorEntity* link, Invoice* invoice);
    /** Reads what stands behind a link beside the invoice and the lines; for all links of a list at once. */
    virtual bool loadOrders(const QList<KorEntity*>& links);

    /** The links of this tail, each with its full invoice, its lines and its order: a fixed number of statements. */
    QList<KorEntity*> findLinks(const QString& tail, Bindings values);
    QList<KorEntity*> findLinks(KorPaging* paging);
    [[nodiscard]] DataMapperInvoice* invoices() const { return m_invoices; }

private:
    bool insertLines(IInvoice* sale, QString* reason);
    /** The same links with what stands behind them; none when it cannot be read. */
    QList<KorEntity*> loaded(const QList<KorEntity*>& links);
    bool load(const QList<KorEntity*>& links);
    bool fail(const QString& message, const QString& reasons);
    static IInvoice* saleOf(KorEntity* link);

    DataMapperInvoice* m_invoices;
};
