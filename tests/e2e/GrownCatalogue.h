#pragma once

#include "app/persistence/AppMasterMapper.h"
#include "app/persistence/AppMasterService.h"
#include "zavel/tables/EntityMeja.h"

// The additions of a newer program: a family with lines, and a column with an index for an existing table.

/** A wing of the restaurant's building. */
class EntityWing : public EntityMeja
{
    Q_OBJECT

public:
    using EntityMeja::EntityMeja;
};

/** Its rooms, as lines. */
class DataMapperWingRoom final : public AppDataMapper
{
    Q_OBJECT

public:
    DataMapperWingRoom(QObject* parent, KorDataMapper* wings);
    KorEntity* createEntity() override { return new EntityMeja(entityParent()); }
};

class DataMapperWing final : public AppMasterMapper
{
    Q_OBJECT

public:
    explicit DataMapperWing(QObject* parent);
    KorEntity* createEntity() override { return new EntityWing(entityParent()); }
    bool createTable(int mode) override { return AppMasterMapper::createTable(mode) && m_rooms->createTable(mode); }
    [[nodiscard]] QList<KorDataMapper*> lineMappers() const override { return {m_rooms}; }
    [[nodiscard]] QStringList indexStatements() const override { return {index("nama", "(nama)")}; }

private:
    DataMapperWingRoom* const m_rooms;
};

/** The restaurant's tables, each in a wing from now on. */
class DataMapperMejaInWing final : public AppMasterMapper
{
    Q_OBJECT

public:
    DataMapperMejaInWing(QObject* parent, DataMapperWing* wings);
    KorEntity* createEntity() override { return new EntityMeja(entityParent()); }
    [[nodiscard]] QStringList indexStatements() const override { return {index("wing_id", "(wing_id)")}; }
};

class BusinessWing final : public AppMasterService<EntityWing>
{
    Q_OBJECT

public:
    enum PERMISSIONS { MANAGE_WINGS };
    Q_ENUM(PERMISSIONS)

    BusinessWing(QObject* parent, DataMapperWing* mapper) : AppMasterService("Wing", mapper, parent) {}
    [[nodiscard]] QList<KorPermission> getPermissions() const override { return {{MANAGE_WINGS, "Manage wings"}}; }
};

/** The users, with a column that the login reads. It is not part of the catalogue. */
class DataMapperUserWithPin final : public AppDataMapper
{
    Q_OBJECT

public:
    explicit DataMapperUserWithPin(QObject* parent);
    KorEntity* createEntity() override { return new EntityMeja(entityParent()); }
};

/** Adds all except the last one to the program's mappers; it came with the program's version. */
void addGrownCatalogue();
