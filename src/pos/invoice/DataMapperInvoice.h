#pragma once

#include "app/persistence/AppDataMapper.h"
#include "pos/invoice/DataMapperInvoiceDetail.h"

class DataMapperAgent;
class DataMapperBank;
class DataMapperEmployee;
class DataMapperKey;
class DataMapperMember;
class Invoice;

/** The amounts of every sale, in the table "invoice". It creates the mapper of the lines. */
class DataMapperInvoice : public AppDataMapper
{
    Q_OBJECT

public:
    /** The mappers of the joined tables, which are borrowed. The links of the three ways of selling use them, too. */
    struct Partners
    {
        DataMapperEmployee* employees;
        DataMapperAgent* agents;
        DataMapperMember* members;
        DataMapperBank* accounts;
        DataMapperKey* keys;
    };

    DataMapperInvoice(QObject* parent, const Partners& partners, const ItemPartners& items);

    KorEntity* createEntity() override;
    bool createTable(int mode) override;
    [[nodiscard]] QStringList indexStatements() const override;
    [[nodiscard]] QList<KorDataMapper*> lineMappers() const override { return {m_detailMapper}; }

    [[nodiscard]] DataMapperInvoiceDetail* detailMapper() const { return m_detailMapper; }
    [[nodiscard]] const Partners& partners() const { return m_partners; }
    [[nodiscard]] QList<Invoice*> findByIds(const QList<int>& ids);

    // Quantities sold; 0 if nothing was sold or the query fails. Both dates are inclusive.
    [[nodiscard]] static int quantityUsed(int itemId, const QDate& until);
    [[nodiscard]] static int quantityUsed(int itemId, const QDate& from, const QDate& until);

protected:
    /** For the link mappers, which have their own columns and use the same detail mapper. */
    DataMapperInvoice(QObject* parent, DataMapperInvoice* invoices);

private:
    Partners m_partners;
    DataMapperInvoiceDetail* m_detailMapper;
};
