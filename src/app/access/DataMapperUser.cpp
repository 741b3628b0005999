#include "app/access/DataMapperUser.h"

#include "app/access/DataMapperUserGroup.h"
#include "app/context/EntityUser.h"
#include "kor/entity/KorMetaDataMap.h"

#include <QCryptographicHash>

namespace
{
constexpr int passwordColumn = 3;
}

DataMapperUser::DataMapperUser(QObject* parent, DataMapperUserGroup* groups) : AppDataMapper(parent)
{
    setName("user");
    metaData()->setTableName("users");
    column("first_name", "varchar(200) not null", "FirstName");
    column("last_name", "varchar(200) not null", "LastName");
    column("username", "varchar(200) not null", "UserName");
    column("password", "varchar(200) not null", "Password");
    reference("user_group_id", "integer not null", "Group", groups, "inner");
    column("currency", "varchar(4) not null", "Currency");
}

KorEntity* DataMapperUser::createEntity() { return new EntityUser(entityParent()); }

QStringList DataMapperUser::indexStatements() const { return {index("user_group_id", "(user_group_id)")}; }

bool DataMapperUser::lockTable()
{
    KorQuery query;
    return execute(query, "lock table " + tableName() + " in share row exclusive mode");
}

QString DataMapperUser::digest(const QString& password)
{
    return QString::fromLatin1(QCryptographicHash::hash(password.toUtf8(), QCryptographicHash::Md5).toHex());
}

void DataMapperUser::bindInsert(KorQuery& query, KorEntity* entity)
{
    AppDataMapper::bindInsert(query, entity);
    query.bindSecret(passwordColumn, digest(static_cast<EntityUser*>(entity)->getPassword()));
}

void DataMapperUser::bindUpdate(KorQuery& query, KorEntity* entity)
{
    auto* user = static_cast<EntityUser*>(entity);
    if (!user->getPassword().isEmpty()) {
        bindInsert(query, user);
        return;
    }
    if (const auto* stored = static_cast<EntityUser*>(findById(user->getId())))
        user->setPassword(stored->getPassword());
    AppDataMapper::bindUpdate(query, user);
    query.bindSecret(passwordColumn, user->getPassword());
}

EntityUser* DataMapperUser::findByUsername(const QString& username)
{
    return static_cast<EntityUser*>(findOne(KorConditions().equals("username", username)));
}

QList<KorEntity*> DataMapperUser::findByGroup(int groupId)
{
    return findMany(KorConditions().equals("user_group_id", groupId));
}

QList<KorEntity*> DataMapperUser::findAll(const QString& filter)
{
    return findMany(KorConditions()
                        .contains({"lower(first_name)", "lower(last_name)", "lower(username)"}, filter)
                        .ascending("users.id"));
}

QList<KorEntity*> DataMapperUser::search(const QString& filter)
{
    return findMany(KorConditions().matches({"first_name", "last_name", "username"}, '%' + filter + '%'));
}
