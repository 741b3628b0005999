#pragma once

#include "app/persistence/AppDataMapper.h"

class DataMapperEmployee;
class DataMapperInvoice;
class DataMapperMember;
class DataMapperUser;

/** Reads the sales of all three kinds: the invoices with their links, orders, users and waitresses. It has no table. */
class DataMapperPenjualanInfo final : public AppDataMapper
{
    Q_OBJECT

public:
    struct Partners
    {
        DataMapperInvoice* invoices;
        KorDataMapper* dineInvoices;
        KorDataMapper* fastFoodInvoices;
        KorDataMapper* takeAwayInvoices;
        KorDataMapper* dineOrders;
        DataMapperUser* users;
        DataMapperMember* members;
        DataMapperEmployee* employees;
    };

    DataMapperPenjualanInfo(QObject* parent, Partners partners);

    KorEntity* createEntity() override;
    bool createTable(int) override { return true; }
    using AppDataMapper::fillFromRow;
    KorEntity* fillFromRow(KorQuery& query, KorEntity* entity) override;

private:
    [[nodiscard]] QString typeNameOf(KorQuery& query) const;

    Partners m_partners;
};
