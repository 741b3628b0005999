#include "zavel/install/ZavelInstaller.h"

#include "app/configuration/BusinessConfiguration.h"
#include "app/context/DatabaseVersion.h"
#include "app/context/EntityPool.h"
#include "kor/business/KorErrorScope.h"
#include "kor/persistence/KorDataMapper.h"
#include "pos/masterdata/agent/BusinessAgent.h"
#include "pos/masterdata/agent/EntityAgent.h"
#include "pos/printing/configuration/EntityConfigKitchenPrinter.h"
#include "pos/registry/PosBusinessRegistry.h"
#include "zavel/registry/ZavelBusinessRegistry.h"
#include "zavel/registry/ZavelMapperRegistry.h"
#include "zavel/tables/BusinessMeja.h"

ZavelInstaller::ZavelInstaller(QObject* parent)
    : PosInstaller(parent), m_tables(qobject_cast<BusinessMeja*>(ZavelBusinessRegistry::instance()->get("Table"))),
      m_agents(PosBusinessRegistry::instance()->agent())
{
    setAppVersion(DatabaseVersion::ofProgram());
}

void ZavelInstaller::addMappers()
{
    PosInstaller::addMappers();
    addAll(ZavelMapperRegistry::instance()->all());
}

void ZavelInstaller::registerPermissions()
{
    PosInstaller::registerPermissions();
    registerAll(ZavelBusinessRegistry::instance()->all());
}

void ZavelInstaller::insertInitialData()
{
    PosInstaller::insertInitialData();
    if (!isFresh())
        return;
    setStatus(tr("Zavel Data"));
    insertVersion();
    insertKeys();
    insertTables();
    insertAgent();
    insertKitchenPrinter();
}

void ZavelInstaller::insertVersion()
{
    EntityAppConfig version;
    version.setKey(DatabaseVersion::key());
    version.setValue(versionText());
    insertRow(m_configuration, &version);
}

void ZavelInstaller::recordCompletion()
{
    if (isFresh())
        return;
    EntityPool pool;
    const EntityPoolScope scope(pool);
    KorErrorScope errors(m_configuration);
    EntityAppConfig* version = m_configuration->getConfig(DatabaseVersion::key());
    if (version) {
        version->setValue(versionText());
        m_configuration->update(version);
    }
    reportAny(errors.take());
}

void ZavelInstaller::insertKeys()
{
    insertKey("TRD", "Dine Invoice Key");
    insertKey("TRF", "Fast Food Invoice Key");
    insertKey("TRP", "Take Away Food Invoice Key");
    insertKey("PIU", "Credit Key");
    insertKey("KAG", "Agent Commission Key");
}

void ZavelInstaller::insertTables()
{
    for (int number = 1; number <= 2; ++number) {
        EntityMeja table;
        table.setKode(QString("m%1").arg(number));
        table.setNama(QString("Table %1").arg(number));
        insertRow(m_tables, &table);
    }
}

void ZavelInstaller::insertAgent()
{
    EntityAgent agent;
    fillContact(agent, "agent1", "Agent 1", "Jl. Contoh 5, Sukamaju", "021-5550141", "agent1@example.com");
    agent.setCommisionPerc(10);
    insertRow(m_agents, &agent);
}

void ZavelInstaller::insertKitchenPrinter()
{
    EntityConfigKitchenPrinter printer;
    printer.setKey(EntityConfigKitchenPrinter::keyPrefix() + "_1");
    printer.setKitchenName(tr("Kitchen 1"));
    fillPrinter(printer, tr("Thanks"));
    printer.setAutoPrint(EntityConfigPrinter::yes());
    insertRow(m_configuration, &printer);
}
