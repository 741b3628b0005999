#include "support/DatabaseTest.h"

#include "app/registry/AppBusinessRegistry.h"
#include "pos/registry/PosBusinessRegistry.h"
#include "zavel/registry/ZavelBusinessRegistry.h"

DatabaseTest::DatabaseTest() = default;

DatabaseTest::~DatabaseTest() = default;

void DatabaseTest::keepDatabase()
{
    m_isKept = true;
    m_database = std::make_unique<TestDatabase>();
    loginAsAdmin();
}

QStringList DatabaseTest::slips() const
{
    QStringList texts;
    const QDir folder(m_spool->path());
    for (const QString& job : folder.entryList({"*.slip"}, QDir::Files, QDir::Name)) {
        QFile file(folder.filePath(job));
        if (file.open(QIODevice::ReadOnly))
            texts.append(QString::fromUtf8(file.readAll()));
    }
    return texts;
}

QString DatabaseTest::takeSlips()
{
    const QString text = slips().join(QString());
    QDir folder(m_spool->path());
    for (const QString& job : folder.entryList({"*.slip"}, QDir::Files))
        folder.remove(job);
    return text;
}

void DatabaseTest::listPrinters(const QByteArray& names) const
{
    QFile file(m_spool->filePath("printers"));
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(file.write(names), qint64(names.size()));
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
