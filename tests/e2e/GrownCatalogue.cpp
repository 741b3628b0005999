#include "GrownCatalogue.h"

#include "app/context/DatabaseVersion.h"
#include "kor/entity/KorMetaDataMap.h"
#include "zavel/registry/ZavelBusinessRegistry.h"
#include "zavel/registry/ZavelMapperRegistry.h"

DataMapperWingRoom::DataMapperWingRoom(QObject* parent, KorDataMapper* wings) : AppDataMapper(parent)
{
    metaData()->setTableName("wing_room");
    column("nama", "varchar(50) not null", "Nama");
    reference("wing_id", "integer not null", "Wing", wings, "left");
}

DataMapperWing::DataMapperWing(QObject* parent) : AppMasterMapper(parent), m_rooms(new DataMapperWingRoom(this, this))
{
    setName("wing");
    metaData()->setTableName("wing");
    tableSince(DatabaseVersion::ofProgram());
    column("kode", "varchar(20) not null UNIQUE", "Kode");
    column("nama", "varchar(50) not null", "Nama");
}

DataMapperMejaInWing::DataMapperMejaInWing(QObject* parent, DataMapperWing* wings) : AppMasterMapper(parent)
{
    setName("meja in wing");
    metaData()->setTableName("meja");
    column("kode", "varchar(20) not null UNIQUE", "Kode");
    column("nama", "varchar(50) not null", "Nama");
    column("seats", "integer not null default 4", "Seats");
    reference("wing_id", "integer default NULL", "Wing", wings, "left");
    columnsSince(DatabaseVersion::ofProgram(), {"seats", "wing_id"});
}

DataMapperUserWithPin::DataMapperUserWithPin(QObject* parent) : AppDataMapper(parent)
{
    metaData()->setTableName("users");
    column("pin", "varchar(6) null", "Pin");
    columnsSince(DatabaseVersion::ofProgram(), {"pin"});
}

void addGrownCatalogue()
{
    auto* mappers = ZavelMapperRegistry::instance();
    auto* wings = new DataMapperWing(mappers);
    mappers->add(wings);
    mappers->add(new DataMapperMejaInWing(mappers, wings));
    auto* services = ZavelBusinessRegistry::instance();
    services->add(new BusinessWing(services, wings));
}
