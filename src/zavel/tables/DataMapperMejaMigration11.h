#pragma once

#include "app/persistence/AppCodeMigration11.h"

class DataMapperMejaMigration11 final : public AppCodeMigration11
{
    Q_OBJECT

public:
    explicit DataMapperMejaMigration11(const QString& statement) : AppCodeMigration11({statement}) {}
};
