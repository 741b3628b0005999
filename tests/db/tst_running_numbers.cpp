#include "app/numbers/BusinessKey.h"
#include "app/numbers/DataMapperKey.h"
#include "app/numbers/DocumentNumber.h"
#include "app/numbers/EntityKey.h"
#include "app/registry/AppMapperRegistry.h"
#include "kor/persistence/KorDatabase.h"
#include "support/DatabaseTest.h"

#include <QMutex>
#include <QSet>
#include <QThread>

/** The numbers of the documents. */
class TestRunningNumbers : public DatabaseTest
{
    Q_OBJECT

protected:
    void prepare() override
    {
        run("DELETE FROM keytable");
        m_keys = AppMapperRegistry::instance()->keyMapper();
    }

private slots:
    void aNumberIsTheDateAndThePaddedCounter_data()
    {
        const auto row =
            addColumns<QString, int, int, int, QStringList>("format", "next", "step", "digits", "counters");
        row("as installed", "MMyy", 57, 1, 4, {"0057", "0058"});
        row("steps of five", "MMyy", 5, 5, 4, {"0005", "0010"});
        row("more digits than its width are not cut", "MMyy", 1234, 1, 2, {"1234"});
        row("no padding", "MMyy", 7, 1, 0, {"7"});
        row("counter alone", "", 7, 1, 4, {"0007"});
        row("letters that are no date stay", "POMMyy", 1, 1, 4, {"0001"});
        row("quoted prefix", "'TPH'MMyy", 1, 1, 4, {"0001"});
    }
    void aNumberIsTheDateAndThePaddedCounter()
    {
        QFETCH(QString, format);
        FETCH(int, next, step, digits);
        QFETCH(QStringList, counters);
        addKey("NB", format, next, step, digits);
        for (const QString& counter : counters) {
            const QDateTime before = QDateTime::currentDateTime();
            const QString number = draw("NB");
            QVERIFY(number == before.toString(format) + counter ||
                    number == QDateTime::currentDateTime().toString(format) + counter);
        }
        QCOMPARE(nextId("NB"), next + step * counters.size());
    }

    void theLetterHOfBillPaymentsIsTheHour()
    {
        addKey("TPH", "TPHMMyy", 1, 1, 4);
        addKey("KAG", "KAGMMyy", 1, 1, 4);
        const auto pattern = [](const QString& front, const QString& back) {
            return QRegularExpression(QRegularExpression::anchoredPattern(front + "\\d{4}" + back));
        };
        QVERIFY(pattern("TP\\d{1,2}", "0001").match(draw("TPH")).hasMatch());
        QVERIFY(pattern("K(AM|PM)G", "0001").match(draw("KAG")).hasMatch());
    }

    void aDrawIsTwoStatementsAndGoesBackWithItsDocument()
    {
        addKey("PO", "MMyy", 1, 1, 4);
        {
            KorTransaction document;
            const StatementCount statements;
            QVERIFY(!draw("PO").isNull());
            QCOMPARE(statements.count(), 2);
        }
        QCOMPARE(nextId("PO"), 1);
        QVERIFY(draw("PO").endsWith("0001"));
    }

    void withoutItsRowADocumentGetsNoNumber()
    {
        addKey("PO", "MMyy", 1, 1, 4);
        QString error;
        QVERIFY(drawNumber(m_keys, "po", &error).isNull());
        QCOMPARE(error, QString("Can not draw a new number for po. Please try again."));
        QVERIFY(!m_keys->hasError());
    }

    void whoDrawsLaterThanAnotherWorkstationGetsNoNumber()
    {
        addKey("PO", "MMyy", 1, 1, 4);
        // The other workstation has taken a number but not committed yet.
        run("BEGIN; UPDATE keytable SET next_id = 2, version = version + 1");
        QString number;
        QString error;
        const std::unique_ptr<QThread> here(QThread::create([&] {
            DataMapperKey keys(nullptr);
            number = drawNumber(&keys, "PO", &error);
        }));
        here->start();
        QTRY_COMPARE(count("pg_locks WHERE NOT granted"), 1);
        run("COMMIT");
        QVERIFY(here->wait());
        QVERIFY(number.isNull());
        QVERIFY2(error.startsWith("Can not draw a new number for PO. Please try again.\r\n"
                                  "Table: keytable has been updated by user id: "),
                 qPrintable(error));
        QVERIFY(draw("PO").endsWith("0002"));
    }

    void eightWorkstationsNeverGetOneNumberTwice()
    {
        constexpr int workstations = 8;
        constexpr int documents = 200;
        addKey("TRD", "MMyy", 1, 1, 4);
        QMutex mutex;
        QStringList drawn;
        std::vector<std::unique_ptr<QThread>> threads;
        for (int i = 0; i < workstations; ++i) {
            threads.emplace_back(QThread::create([&] {
                DataMapperKey keys(nullptr);
                for (int document = 0; document < documents;) {
                    QString error;
                    const QString number = drawNumber(&keys, "TRD", &error);
                    if (number.isNull())
                        continue; // As a cashier who tries again.
                    ++document;
                    const QMutexLocker lock(&mutex);
                    drawn.append(number);
                }
            }));
            threads.back()->start();
        }
        for (const auto& thread : threads)
            QVERIFY(thread->wait(60000));
        QCOMPARE(drawn.size(), workstations * documents);
        QCOMPARE(QSet<QString>(drawn.begin(), drawn.end()).size(), workstations * documents);
        QCOMPARE(nextId("TRD"), workstations * documents + 1);
    }

    void theListIsSearchedByNameAndSorted()
    {
        for (const char* name : {"TRD", "PO", "TR"})
            addKey(name, "MMyy", 1, 1, 4);
        auto* keys = service<BusinessKey>("KeyTable");
        QStringList names;
        for (const auto* key : castAll<EntityKey>(keys->findAll("Tr")))
            names.append(key->getKeyName());
        QCOMPARE(names, (QStringList{"TR", "TRD"}));
        QCOMPARE(keys->findAll(QString()).size(), 3);
        QCOMPARE(keys->findAll("100%'").size(), 0);
        QVERIFY(!keys->hasError());
    }

private:
    void addKey(const QString& name, const QString& format, int next, int step, int digits)
    {
        EntityKey key;
        key.setKeyName(name);
        key.setFormat(format);
        key.setNextId(next);
        key.setIncrementBy(step);
        key.setNoZero(digits);
        QVERIFY2(m_keys->insert(&key), qPrintable(m_keys->takeError()));
    }
    QString draw(const QString& name)
    {
        QString error;
        const QString number = drawNumber(m_keys, name, &error);
        if (!error.isEmpty())
            qWarning().noquote() << error;
        return number;
    }
    int nextId(const QString& name)
    {
        return m_database->value("SELECT next_id FROM keytable WHERE key_name = '" + name + "'").toInt();
    }

    DataMapperKey* m_keys = nullptr;
};

QTEST_MAIN(TestRunningNumbers)
#include "tst_running_numbers.moc"
