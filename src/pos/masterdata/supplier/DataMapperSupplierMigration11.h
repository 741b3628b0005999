#pragma once

#include "app/persistence/AppCodeMigration11.h"

class DataMapperSupplierMigration11 final : public AppCodeMigration11
{
    Q_OBJECT

public:
    using AppCodeMigration11::AppCodeMigration11;
};
