#pragma once

#include "app/persistence/AppDataMapper.h"

class DataMapperUserGroup;
class EntityUser;

/**
 * The users, in the table "users". Passwords are stored as digests. An update with an empty password keeps the old one.
 */
class DataMapperUser final : public AppDataMapper
{
    Q_OBJECT

public:
    DataMapperUser(QObject* parent, DataMapperUserGroup* groups);

    /** Case-sensitive: "Admin" and "admin" are different logins. */
    [[nodiscard]] EntityUser* findByUsername(const QString& username);
    [[nodiscard]] QList<KorEntity*> findByGroup(int groupId);
    /** For the list; ignores case. */
    [[nodiscard]] QList<KorEntity*> findAll(const QString& filter);
    /** For look-ups; case-sensitive. */
    [[nodiscard]] QList<KorEntity*> search(const QString& filter);

    /** Blocks all other writers until the transaction ends; reading is possible. */
    [[nodiscard]] bool lockTable();

    /** The stored form of a password; compare with it. */
    [[nodiscard]] static QString digest(const QString& password);

    void bindInsert(KorQuery& query, KorEntity* entity) override;
    void bindUpdate(KorQuery& query, KorEntity* entity) override;
    KorEntity* createEntity() override;
    [[nodiscard]] QStringList indexStatements() const override;
};
