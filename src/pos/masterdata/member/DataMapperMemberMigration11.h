#pragma once

#include "app/persistence/AppCodeMigration11.h"

/** The migration of the table "member" to version 1.1. */
class DataMapperMemberMigration11 final : public AppCodeMigration11
{
    Q_OBJECT

public:
    using AppCodeMigration11::AppCodeMigration11;
};
