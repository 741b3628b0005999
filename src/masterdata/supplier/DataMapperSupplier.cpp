#include "masterdata/supplier/DataMapperSupplier.h"

#include "masterdata/bank/DataMapperBank.h"
#include "masterdata/supplier/DataMapperSupplierMigration11.h"
#include "masterdata/supplier/EntitySupplier.h"

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
