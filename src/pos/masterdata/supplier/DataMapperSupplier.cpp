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
    const QString value = '%' + text.toLower() + '%';
    return findMany(" where lower(supplier.kode) like :kode OR lower(supplier.nama) like :nama order by supplier.nama",
                    {{":kode", value}, {":nama", value}});
}
