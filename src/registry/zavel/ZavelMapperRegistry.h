#pragma once

#include "kor/business/KorMapperRegistry.h"

class DataMapperInvoiceMakanDitempat;
class DataMapperMakanDitempat;
class DataMapperMeja;

/** The mappers of this restaurant, in the order in which their tables are created. */
class ZavelMapperRegistry final : public KorMapperRegistry
{
    Q_OBJECT

public:
    static ZavelMapperRegistry* instance();

    [[nodiscard]] DataMapperMeja* mejaMapper() const;
    [[nodiscard]] DataMapperMakanDitempat* makanDitempatMapper() const;
    [[nodiscard]] DataMapperInvoiceMakanDitempat* invoiceMakanDitempatMapper() const;

private:
    explicit ZavelMapperRegistry(QObject* parent);
};
