#pragma once

#include "kor/persistence/KorMigration.h"

/** Version 1.1 widened the code columns of the master tables and added constraints to some. */
class AppCodeMigration11 : public KorStatementMigration11
{
    Q_OBJECT

public:
    explicit AppCodeMigration11(const QStringList& statements)
        : KorStatementMigration11(statements, tr("update kode column to varchar(20)"), nullptr)
    {}
};
