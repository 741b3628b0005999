#include "kor/entity/KorColumnMap.h"
#include "kor/persistence/KorBatch.h"
#include "kor/persistence/KorDatabase.h"
#include "support/DatabaseTest.h"
#include "zavel/registry/ZavelMapperRegistry.h"
#include "zavel/tables/DataMapperMeja.h"

Q_DECLARE_METATYPE(KorConditions)

/** The behavior of all mappers, tested with the restaurant's tables. */
class TestMapper : public DatabaseTest
{
    Q_OBJECT

protected:
    void prepare() override
    {
        run("DELETE FROM meja");
        m_mapper = ZavelMapperRegistry::instance()->mejaMapper();
    }

private slots:
    void aNewTableIsStampedAndFoundAgain()
    {
        EntityMeja& table = *newTable("A1", "Window's 50% corner");
        QVERIFY2(m_mapper->insert(&table), qPrintable(m_mapper->takeError()));
        QVERIFY(table.isSaved());

        auto* found = static_cast<EntityMeja*>(m_mapper->findById(table.getId()));
        QVERIFY(found);
        QCOMPARE(found->getNama(), QString("Window's 50% corner"));
        QCOMPARE(found->getCreatedBy(), 1);
        QCOMPARE(found->getUpdatedBy(), KorNoValue);
        QCOMPARE(found->getVersion(), 1);
        QVERIFY(qAbs(found->getCreatedTime().secsTo(QDateTime::currentDateTime())) < 5);
    }

    void aStampIsReadAsTheDriverReadsIt_data()
    {
        addColumns<QString>("stamp");
        for (const char* stamp :
             {"2026-11-24 18:30:05", "2026-02-28 23:59:59.5", "2026-01-01 00:00:00.123456", "2026-01-01 11:59:59.9996",
              "1969-12-31 12:00:00", "0001-01-01 00:00:00.0001", "12026-11-24 18:30:05", "infinity"})
            addRow(stamp, stamp);
    }
    void aStampIsReadAsTheDriverReadsIt()
    {
        FETCH(QString, stamp);
        KorQuery query;
        QVERIFY(query.exec("SELECT timestamp '" + stamp + "', NULL::timestamp, date 'today'") && query.next());
        QCOMPARE(query.row().toStamp(0).toDateTime(), query.value(0).toDateTime());
        QVERIFY(!query.row().toStamp(1).isValid());
        QCOMPARE(query.row().toDate(2), QDate::currentDate());
    }

    void conditionsChooseRows_data()
    {
        const QStringList texts{"lower(kode)", "lower(nama)"};
        QTest::addColumn<KorConditions>("conditions");
        QTest::addColumn<QString>("codes");
        QTest::newRow("none") << KorConditions().ascending("kode") << "A1 B2 C3";
        QTest::newRow("an order of two") << KorConditions().descending("nama = ''").ascending("kode") << "C3 A1 B2";
        QTest::newRow("a quote") << KorConditions().equals("nama", "it's 100%") << "B2";
        QTest::newRow("an empty value") << KorConditions().equals("nama", "") << "C3";
        QTest::newRow("no value") << KorConditions().equals("nama", QVariant()) << "";
        QTest::newRow("one of several, and another")
            << KorConditions().contains(texts, "I").differs("kode", "A1") << "B2";
        QTest::newRow("another, and one of several")
            << KorConditions().holds("nama <> ''").contains(texts, "c").ascending("kode") << "";
        QTest::newRow("ids") << KorConditions().oneOf("length(nama)", {0, 6}).ascending("kode") << "A1 C3";
        QTest::newRow("no ids") << KorConditions().oneOf("length(nama)", {}) << "";
        QTest::newRow("up to a day") << KorConditions().between("date '2026-03-01'", {}, {2026, 2, 28}) << "";
        QTest::newRow("left open") << KorConditions()
                                          .between("date '2026-03-01'", {}, {})
                                          .contains("nama", "")
                                          .only("id", KorNoValue)
                                          .only("nama", "")
                                          .ascending("kode")
                                   << "A1 B2 C3";
    }
    void conditionsChooseRows()
    {
        QFETCH(KorConditions, conditions);
        QFETCH(QString, codes);
        m_database->run("INSERT INTO meja (kode, nama, version) VALUES ('A1', 'Window', 1), ('B2', 'it''s 100%', 1), "
                        "('C3', '', 1)");
        KorPaging paging;
        conditions.fill(paging);
        QStringList found;
        for (const KorEntity* table : m_mapper->find(&paging))
            found.append(static_cast<const EntityMeja*>(table)->getKode());
        QVERIFY2(!m_mapper->hasError(), qPrintable(m_mapper->takeError()));
        QCOMPARE(found.join(' '), codes);
    }

    void manyTablesAtOnceAreStoredAsOneByOne_data()
    {
        addRows<QString>("name", {{"plain", "Window"},
                                  {"empty", ""},
                                  {"quotes and backslashes", "o'B\\'' \\x \"n\""},
                                  {"placeholders", "? :name $1 %1; drop table meja"},
                                  {"line ends and other letters", QString::fromUtf8("a\r\nb\tü 窓")}});
    }
    void manyTablesAtOnceAreStoredAsOneByOne()
    {
        QFETCH(QString, name);
        EntityMeja& one = *newTable("A0", name);
        EntityMeja& first = *newTable("A1", name);
        EntityMeja& second = *newTable("A2", name);
        const QList<EntityMeja*> tables{&one, &first, &second};
        QVERIFY2(m_mapper->insert(&one), qPrintable(m_mapper->takeError()));
        QVERIFY2(m_mapper->update(&one), qPrintable(m_mapper->takeError()));
        KorTransaction transaction;
        KorBatch inserts;
        m_mapper->insertWith(inserts, {&first, &second});
        QVERIFY2(inserts.send(), qPrintable(inserts.failures().join('\n')));
        KorBatch updates;
        m_mapper->updateWith(updates, &first);
        m_mapper->updateWith(updates, &second);
        QVERIFY2(updates.send(), qPrintable(updates.failures().join('\n')));
        QVERIFY(transaction.commit());
        QCOMPARE(m_database->value("SELECT count(DISTINCT (nama, createdby, updatedby, version, createdtime IS NULL, "
                                   "updatedtime IS NULL)) FROM meja"),
                 QVariant(1));
        for (const EntityMeja* table : tables)
            QCOMPARE(static_cast<EntityMeja*>(m_mapper->findById(table->getId()))->getKode(), table->getKode());
    }

    void whatFoundNoRowIsToldAndStopsNothing()
    {
        EntityMeja& stays = *newTable("A", "");
        EntityMeja& goes = *newTable("B", "");
        KorBatch inserts;
        m_mapper->insertWith(inserts, {&stays, &goes});
        QVERIFY(inserts.send());
        run("DELETE FROM meja WHERE kode = 'B'");
        stays.setNama("Bar");
        KorBatch changes;
        m_mapper->updateWith(changes, &goes);
        m_mapper->removeWith(changes, &goes);
        m_mapper->updateWith(changes, &stays);
        QVERIFY(!changes.send());
        const QString told = "Table: meja has been deleted";
        QCOMPARE(changes.failures(), QStringList({told, told}));
        QCOMPARE(changes.failed(), m_mapper);
        QCOMPARE(value("SELECT nama FROM meja"), QString("Bar"));
    }

    void theSlowerOfTwoWorkstationsIsTold()
    {
        EntityMeja& table = *newTable("A1", "One");
        QVERIFY(m_mapper->insert(&table));
        run("UPDATE meja SET version = version + 1, updatedby = 9, updatedtime = now()");
        QVERIFY(!m_mapper->update(&table));
        QCOMPARE(m_mapper->takeError(),
                 QString("Table: meja has been updated by user id: %1  at: 9").arg(table.getId()));
        QVERIFY(!m_mapper->remove(&table));
        QVERIFY(m_mapper->takeError().startsWith("Table: meja has been updated"));
        run("DELETE FROM meja");
        QVERIFY(!m_mapper->update(&table));
        QCOMPARE(m_mapper->takeError(), QString("Table: meja has been deleted"));
        QVERIFY(!m_mapper->hasError());
    }

    void aLostConnectionIsAnErrorAndHealsByItself()
    {
        EntityMeja& table = *newTable("A1", "One");
        m_database->killConnections();
        QVERIFY(!m_mapper->insert(&table));
        const QString error = m_mapper->takeError();
        QVERIFY2(error.startsWith("The connection to the database is lost."), qPrintable(error));
        QVERIFY(error.contains("insert into meja"));
        QVERIFY(!table.isSaved());
        QVERIFY2(m_mapper->insert(&table), qPrintable(m_mapper->takeError()));

        // If the connection is lost after an autocommit statement, it may have been saved.
        run("CREATE FUNCTION hang_up() RETURNS trigger LANGUAGE plpgsql AS 'BEGIN PERFORM "
            "pg_terminate_backend(pg_backend_pid()); RETURN NEW; END'; CREATE TRIGGER hang_up BEFORE "
            "INSERT ON meja FOR EACH ROW EXECUTE FUNCTION hang_up()");
        QVERIFY(!m_mapper->insert(&table));
        QVERIFY(m_mapper->takeError().contains("it is not certain whether it was saved"));
    }

    void aTransactionThatCouldNotBeginWritesNothing()
    {
        EntityMeja& table = *newTable("A1", "One");
        TestCluster::instance().run("ALTER DATABASE " + m_database->name() + " WITH ALLOW_CONNECTIONS false");
        m_database->killConnections();
        {
            KorTransaction transaction;
            QVERIFY(!transaction.isOpen());
            TestCluster::instance().run("ALTER DATABASE " + m_database->name() + " WITH ALLOW_CONNECTIONS true");
            QVERIFY(!m_mapper->insert(&table));
            m_mapper->clearError();
        }
        QVERIFY2(m_mapper->insert(&table), qPrintable(m_mapper->takeError()));
    }

    void searchTextsReachTheDatabaseAsTyped_data()
    {
        const auto row = addColumns<QString, int>("filter", "rows");
        row("everything", "", 3);
        row("part of a name", "corner", 1);
        row("apostrophe", "window's", 1);
        row("lone apostrophe", "'", 1);
        row("percent sign is a wildcard", "%", 3);
        row("backslash", "\\", 0);
        row("looks like SQL", "'; drop table meja; --", 0);
    }
    void searchTextsReachTheDatabaseAsTyped()
    {
        run("INSERT INTO meja (kode, nama, version) VALUES ('a', 'Window''s corner', 1), ('b', 'B', 1), "
            "('c', 'C', 1)");
        QFETCH(QString, filter);
        QTEST(m_mapper->findAll(filter).size(), "rows");
    }

    void aMomentThatNobodyEnteredIsNoNull()
    {
        const KorEntity record;
        const QVariant value = columnValue(KorColumnMap("at", "timestamp", "CreatedTime"), &record);
        QVERIFY(value.toString().isEmpty() && !value.isNull());
    }

private:
    [[nodiscard]] EntityMeja* newTable(const QString& code, const QString& name) const
    {
        auto* table = new EntityMeja(m_records.get());
        table->setKode(code);
        table->setNama(name);
        return table;
    }

    DataMapperMeja* m_mapper = nullptr;
};

QTEST_MAIN(TestMapper)
#include "tst_mapper.moc"
