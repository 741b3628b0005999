#pragma once

#include "app/persistence/AppMasterMapper.h"

class DataMapperBank;

/** Mapper of a contact: the columns that all of them have, and those of the ones that get paid. */
class ContactMapper : public AppMasterMapper
{
    Q_OBJECT

public:
    using AppMasterMapper::AppMasterMapper;

protected:
    void contactColumns(const QString& table, const QString& emailType);
    /** The account columns of a payee; two of the types are worded by the table. */
    void payeeColumns(DataMapperBank* bankMapper, const QString& nameType, const QString& notesType);

    // Qualified, as a payee's list joins the accounts, which have a code and a name of their own.
    [[nodiscard]] QString codeColumn() const override { return tableName() + ".kode"; }
    [[nodiscard]] QString nameColumn() const override { return tableName() + ".nama"; }
};
