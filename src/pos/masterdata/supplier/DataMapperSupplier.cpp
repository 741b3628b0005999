#include "pos/masterdata/supplier/DataMapperSupplier.h"

#include "pos/masterdata/account/DataMapperBank.h"
#include "pos/masterdata/supplier/DataMapperSupplierMigration11.h"
#include "pos/masterdata/supplier/EntitySupplier.h"

DataMapperSupplier::DataMapperSupplier(QObject* parent, DataMapperBank* bankMapper) : ContactMapper(parent)
{
    contactColumns("supplier", "varchar(255) not null");
    payeeColumns(bankMapper, "varchar(200) null", "varchar(500) null");
}

KorEntity* DataMapperSupplier::createEntity() { return new EntitySupplier(entityParent()); }

QList<KorMigration*> DataMapperSupplier::migrations()
{
    return {new DataMapperSupplierMigration11({widenCodeStatement(), uniqueCodeStatement()})};
}

QStringList DataMapperSupplier::indexStatements() const { return {index("bank_id", "(bank_id)")}; }

QList<KorEntity*> DataMapperSupplier::findByFilter(const QString& text)
{
    return findMany(
        KorConditions().contains({"lower(supplier.kode)", "lower(supplier.nama)"}, text).ascending("supplier.nama"));
}
