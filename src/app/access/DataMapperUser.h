#pragma once

#include "app/persistence/AppDataMapper.h"

class DataMapperUserGroup;
class EntityUser;

/** The users, in the table "users". A password is stored as its digest, and an empty one leaves it as it was. */
class DataMapperUser final : public AppDataMapper
{
    Q_OBJECT

public:
    DataMapperUser(QObject* parent, DataMapperUserGroup* groups);

    /** Exactly this name: the login tells "Admin" from "admin". */
    [[nodiscard]] EntityUser* findByUsername(const QString& username);
    [[nodiscard]] QList<KorEntity*> findByGroup(int groupId);
    /** For the list, whatever the letters' case. */
    [[nodiscard]] QList<KorEntity*> findAll(const QString& filter);
    /** For look-ups, in the letters as typed. */
    [[nodiscard]] QList<KorEntity*> search(const QString& filter);

    /** Holds all other writers off until the transaction ends; they may read. */
    [[nodiscard]] bool lockTable();

    /** The form in which passwords are stored and compared. */
    [[nodiscard]] static QString digest(const QString& password);

    void bindInsert(KorQuery& query, KorEntity* entity) override;
    void bindUpdate(KorQuery& query, KorEntity* entity) override;
    KorEntity* createEntity() override;
    [[nodiscard]] QStringList indexStatements() const override;
};
