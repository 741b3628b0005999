#pragma once

#include "app/persistence/AppMasterMapper.h"

class DataMapperBank;

/** Base of the mappers of contacts: their common columns, and those of payees. */
class ContactMapper : public AppMasterMapper
{
    Q_OBJECT

public:
    using AppMasterMapper::AppMasterMapper;

protected:
    void contactColumns(const QString& table, const QString& emailType);
    /** Declares the account columns of a payee. The SQL types of two columns differ between tables. */
    void payeeColumns(DataMapperBank* bankMapper, const QString& nameType, const QString& notesType);

    // Qualified, because the payees' list joins the accounts, which have the same columns.
    [[nodiscard]] QString codeColumn() const override { return tableName() + ".kode"; }
    [[nodiscard]] QString nameColumn() const override { return tableName() + ".nama"; }
};
