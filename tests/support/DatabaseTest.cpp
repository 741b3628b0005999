#include "support/DatabaseTest.h"

#include "app/registry/AppBusinessRegistry.h"
#include "kor/business/KorBusinessLogic.h"
#include "pos/registry/PosBusinessRegistry.h"
#include "zavel/registry/ZavelBusinessRegistry.h"

#include <QFile>

DatabaseTest::DatabaseTest() = default;

DatabaseTest::~DatabaseTest() = default;

void DatabaseTest::keepDatabase()
{
    m_isKept = true;
    m_database = std::make_unique<TestDatabase>();
    loginAsAdmin();
}

void DatabaseTest::init()
{
    m_spool = std::make_unique<QTemporaryDir>();
    qputenv("ZAVEL_SPOOL_DIR", QFile::encodeName(m_spool->path()));
    if (!m_database)
        m_database = std::make_unique<TestDatabase>();
    loginAsAdmin();
    m_records = std::make_unique<QObject>();
    // Tests without windows need no driver.
    if (qobject_cast<QApplication*>(QCoreApplication::instance()))
        m_people = std::make_unique<ModalDriver>();
    prepare();
}

void DatabaseTest::cleanup()
{
    tidy();
    m_people.reset();
    m_make.reset();
    m_records.reset();
    // Errors stay in the services, so the next test would see them.
    const QList<const KorBusinessRegistry*> registries{AppBusinessRegistry::instance(), PosBusinessRegistry::instance(),
                                                       ZavelBusinessRegistry::instance()};
    for (const KorBusinessRegistry* registry : registries) {
        for (KorBusinessLogic* service : registry->all())
            service->clearErrors();
    }
    if (!m_isKept)
        m_database.reset();
    qunsetenv("ZAVEL_SPOOL_DIR");
}
