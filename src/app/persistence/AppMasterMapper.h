#pragma once

#include "app/persistence/AppDataMapper.h"

class KorMigration;

/**
 * Mapper of a master record with a code and a name: finds it by its code (ignoring case) and searches in both. Version
 * 1.1 of the schema widened its code column.
 */
class AppMasterMapper : public AppDataMapper
{
    Q_OBJECT

public:
    using AppDataMapper::AppDataMapper;

    [[nodiscard]] virtual KorEntity* findByCode(const QString& code);
    /** All records whose code or name contains the text, ignoring case; all for an empty text. */
    [[nodiscard]] virtual QList<KorEntity*> findAll(const QString& filter);

protected:
    /** "kode", or qualified with the table if a join has a column of that name. */
    [[nodiscard]] virtual QString codeColumn() const { return "kode"; }
    [[nodiscard]] virtual QString nameColumn() const { return "nama"; }
    /** The expression that a list is sorted by, ascending; empty for no order. */
    [[nodiscard]] virtual QString sortColumn() const { return nameColumn(); }

    /** The SQL of version 1.1 that widens the code column. */
    [[nodiscard]] QString widenCodeStatement() const;
    /** For tables whose codes were not unique in the first version. */
    [[nodiscard]] QString uniqueCodeStatement() const;
};
