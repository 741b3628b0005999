#pragma once

#include "app/persistence/AppDataMapper.h"

class DataMapperAgent;
class DataMapperEmployee;
class DataMapperInvoice;
class DataMapperMember;
class DataMapperPiutang;
class EntityPiutangDetail;

/**
 * What members' payments paid of invoices, in the table "piutang_detail". The invoice has no foreign key: a sale may
 * be deleted, and its payment lines then stay in the table but are read no more.
 */
class DataMapperPiutangDetail final : public AppDataMapper
{
    Q_OBJECT

public:
    DataMapperPiutangDetail(DataMapperPiutang* payments, DataMapperInvoice* invoices, DataMapperEmployee* employees,
                            DataMapperAgent* agents, DataMapperMember* members);

    KorEntity* createEntity() override;
    [[nodiscard]] QStringList indexStatements() const override;

    [[nodiscard]] QList<EntityPiutangDetail*> findByPayment(int paymentId);
    /** What all payments paid of these invoices. */
    [[nodiscard]] QList<EntityPiutangDetail*> findByInvoices(const QList<int>& invoiceIds);
    /** Removes all lines of the payment, also those that no read gives any more because their sale was deleted. */
    bool removeByPayment(int paymentId);
};
