#pragma once

#include "app/persistence/AppDataMapper.h"

class KorMigration;

/**
 * Mapper of a master record with a code and a name: found by its code whatever the letters' case, searched by part
 * of either, and with a code column that version 1.1 of the schema widened.
 */
class AppMasterMapper : public AppDataMapper
{
    Q_OBJECT

public:
    using AppDataMapper::AppDataMapper;

    [[nodiscard]] virtual KorEntity* findByCode(const QString& code);
    /** All records whose code or name holds the text, whatever the letters' case; all for an empty text. */
    [[nodiscard]] virtual QList<KorEntity*> findAll(const QString& filter);

protected:
    /** "kode", or with the table in front where joins bring a second column of that name. */
    [[nodiscard]] virtual QString codeColumn() const { return "kode"; }
    [[nodiscard]] virtual QString nameColumn() const { return "nama"; }
    /** The expression that a list is sorted by, ascending; empty for the database's own order. */
    [[nodiscard]] virtual QString sortColumn() const { return nameColumn(); }

    /** The statement that widened the code column, as every family's first migration has it. */
    [[nodiscard]] QString widenCodeStatement() const;
    /** For the tables whose codes the first version did not keep apart. */
    [[nodiscard]] QString uniqueCodeStatement() const;
};
