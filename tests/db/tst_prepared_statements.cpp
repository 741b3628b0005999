#include "kor/persistence/KorDatabase.h"
#include "support/DatabaseTest.h"
#include "zavel/registry/ZavelMapperRegistry.h"
#include "zavel/tables/DataMapperMeja.h"

#include <QThread>

namespace
{
const char* const byCode = "select kode, nama from meja where kode = :kode";
const char* const widen = "ALTER TABLE meja ALTER COLUMN kode TYPE varchar(%1)";
} // namespace

/** Statements stay prepared on the server; this must not change their results. */
class TestPreparedStatements : public DatabaseTest
{
    Q_OBJECT

protected:
    void prepare() override
    {
        run("DELETE FROM meja");
        run("INSERT INTO meja (kode, nama, version) VALUES ('a', 'Window', 1), ('b', 'Door', 1)");
        m_tables = ZavelMapperRegistry::instance()->mejaMapper();
    }

private slots:
    void aTableReadTenTimesIsPreparedOnce()
    {
        QCOMPARE(nameOf("a"), QString("Window"));
        const int known = preparedStatements();
        for (int i = 0; i < 10; ++i)
            QCOMPARE(nameOf("a"), QString("Window"));
        QCOMPARE(preparedStatements(), known);
    }

    void twoReadsOfOneStatementDoNotMixTheirTables()
    {
        QCOMPARE(nameOf("a"), QString("Window"));
        KorQuery first;
        KorQuery second;
        first.prepare(byCode);
        first.bindValue(":kode", "a");
        QVERIFY(first.exec());
        second.prepare(byCode);
        second.bindValue(":kode", "b");
        QVERIFY(second.exec());
        QVERIFY(first.next());
        QVERIFY(second.next());
        QCOMPARE(first.field("nama").toString(), QString("Window"));
        QCOMPARE(second.field("nama").toString(), QString("Door"));
    }

    void aCodeThatNobodyBoundIsNotTheOneOfTheLastRead()
    {
        for (int round = 0; round < 2; ++round) {
            KorQuery bound;
            bound.prepare(byCode);
            bound.bindValue(":kode", "a");
            QVERIFY(bound.exec() && bound.next());
        }
        KorQuery unbound;
        unbound.prepare(byCode);
        QVERIFY(unbound.exec());
        QVERIFY(!unbound.next());
    }

    void aTableIsReadAndWrittenAfterItsColumnsHaveChanged()
    {
        for (int width : {30, 40, 50, 60}) {
            auto* table = static_cast<EntityMeja*>(m_tables->findByCode("a"));
            QVERIFY2(table, qPrintable(m_tables->takeError()));
            QVERIFY2(m_tables->update(table), qPrintable(m_tables->takeError()));
            const QString change = QString(widen).arg(width);
            // First by this program, then by another workstation.
            if (width > 40)
                run(change);
            else
                QVERIFY(KorQuery().exec(change));
        }
        QCOMPARE(nameOf("a"), QString("Window"));
        QVERIFY(!m_tables->hasError());
    }

    void aChangeByAnotherWorkstationDuringASaveFailsThatSaveOnly()
    {
        QCOMPARE(nameOf("a"), QString("Window"));
        run(QString(widen).arg(30));
        {
            const KorTransaction transaction;
            QVERIFY(!m_tables->findByCode("a"));
            QVERIFY(m_tables->takeError().contains("cached plan"));
        }
        QCOMPARE(nameOf("a"), QString("Window"));
    }

    void aLostConnectionLosesItsStatementsAndNothingElse()
    {
        QCOMPARE(nameOf("a"), QString("Window"));
        {
            KorQuery open;
            open.prepare(byCode);
            open.bindValue(":kode", "a");
            QVERIFY(open.exec());
            m_database->killConnections();
            QCOMPARE(nameOf("a"), QString());
            QVERIFY(!m_tables->takeError().isEmpty());
            KorTransaction transaction;
            QVERIFY(transaction.isOpen());
            QCOMPARE(nameOf("b"), QString("Door"));
            auto* table = static_cast<EntityMeja*>(m_tables->findByCode("a"));
            table->setNama("Terrace");
            QVERIFY2(m_tables->update(table), qPrintable(m_tables->takeError()));
            QVERIFY(transaction.commit());
        }
        QCOMPARE(nameOf("a"), QString("Terrace"));
    }

    void everyThreadPreparesForItself()
    {
        QCOMPARE(nameOf("a"), QString("Window"));
        QString name;
        for (int round = 0; round < 2; ++round) {
            std::unique_ptr<QThread> worker(QThread::create([this, &name] {
                for (int i = 0; i < 3; ++i)
                    name += nameOf("b");
            }));
            worker->start();
            QVERIFY(worker->wait());
        }
        QCOMPARE(name, QString("Door").repeated(6));
        QCOMPARE(nameOf("a"), QString("Window"));
    }

private:
    QString nameOf(const QString& code)
    {
        auto* table = static_cast<EntityMeja*>(m_tables->findByCode(code));
        const QString name = table ? table->getNama() : QString();
        delete table;
        return name;
    }
    static int preparedStatements()
    {
        KorQuery query;
        query.exec("select count(*) as count from pg_prepared_statements");
        return query.next() ? query.field("count").toInt() : -1;
    }

    DataMapperMeja* m_tables = nullptr;
};

QTEST_MAIN(TestPreparedStatements)
#include "tst_prepared_statements.moc"
