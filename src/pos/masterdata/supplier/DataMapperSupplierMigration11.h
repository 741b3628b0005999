#pragma once

#include "app/persistence/AppCodeMigration11.h"

/** The migration of the table "supplier" to version 1.1. */
class DataMapperSupplierMigration11 final : public AppCodeMigration11
{
    Q_OBJECT

public:
    using AppCodeMigration11::AppCodeMigration11;
};
