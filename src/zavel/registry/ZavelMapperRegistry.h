#pragma once

#include "kor/business/KorMapperRegistry.h"

class DataMapperAllAgentCommision;
class DataMapperBawaPulang;
class DataMapperInvoiceBawaPulang;
class DataMapperInvoiceFastFood;
class DataMapperInvoiceMakanDitempat;
class DataMapperKomisiAgen;
class DataMapperMakanDitempat;
class DataMapperMeja;
class DataMapperPenjualanInfo;
class DataMapperPiutang;

/** The mappers of this restaurant, in the order in which their tables are created. */
class ZavelMapperRegistry final : public KorMapperRegistry
{
    Q_OBJECT

public:
    static ZavelMapperRegistry* instance();

    [[nodiscard]] DataMapperMeja* mejaMapper() const;
    [[nodiscard]] DataMapperMakanDitempat* makanDitempatMapper() const;
    [[nodiscard]] DataMapperInvoiceMakanDitempat* invoiceMakanDitempatMapper() const;
    [[nodiscard]] DataMapperInvoiceFastFood* invoiceFastFoodMapper() const;
    [[nodiscard]] DataMapperBawaPulang* bawaPulangMapper() const;
    [[nodiscard]] DataMapperInvoiceBawaPulang* invoiceBawaPulangMapper() const;
    [[nodiscard]] DataMapperPenjualanInfo* penjualanInfoMapper() const;
    [[nodiscard]] DataMapperPiutang* piutangMapper() const;
    [[nodiscard]] DataMapperKomisiAgen* komisiAgenMapper() const;
    [[nodiscard]] DataMapperAllAgentCommision* allAgentCommisionMapper() const;

private:
    explicit ZavelMapperRegistry(QObject* parent);
};
