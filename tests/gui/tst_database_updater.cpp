#include "shell/database/updater/AppDBUpdaterWizard.h"
#include "shell/window/MainWindow.h"
#include "support/DatabaseTest.h"
#include "support/OldDatabase.h"

namespace
{
constexpr int longEnough = 15000;

QStringList statusOf(const QWizard* wizard)
{
    return wizard->findChild<QPlainTextEdit*>()->toPlainText().trimmed().split('\n');
}

bool hasEnded(const QWizard* wizard) { return statusOf(wizard).last() == "[100%] Done. Please restart the app"; }

void press(QWizard* wizard, QWizard::WizardButton button) { QTest::mouseClick(wizard->button(button), Qt::LeftButton); }

/** Elements of the first set that the second does not have. */
QStringList missing(const QSet<QString>& first, const QSet<QString>& second)
{
    QStringList lines = (first - second).values();
    lines.sort();
    return lines;
}
} // namespace

/** The update of a database of version 1.0 by the current program. */
class TestDatabaseUpdater : public DatabaseTest
{
    Q_OBJECT

protected:
    void prepare() override
    {
        m_newSchema = schemaOf(*m_database);
        takeBackToVersion10(*m_database);
        AppContext::instance()->setShowDashboard(false);
        start();
    }
    void tidy() override { m_window.reset(); }

private slots:
    void theQuestionComesByItselfAndTheOldDatabaseBecomesANewOne()
    {
        const auto before = allRows(*m_database);
        m_window->openTab("TabPesananMasuk");
        const auto* pages = m_window->findChild<QTabWidget*>("tabWidget");
        QStringList told;
        m_people->expect<AppDBUpdaterWizard>([&](QWizard* wizard) {
            QCOMPARE(wizard->windowTitle(), QString("ZavelPOS DB Updater Wizard"));
            QCOMPARE(wizard->currentPage()->title(), QString("Update DB"));
            QCOMPARE(pages->count(), 1);
            press(wizard, QWizard::NextButton);
            QCOMPARE(wizard->currentPage()->title(), QString("Installing..."));
            QCOMPARE(wizard->currentPage()->subTitle(), QString("Please wait until the installation completed."));
            // The kitchen's page reads the orders by itself.
            QCOMPARE(pages->count(), 0);
            QTRY_VERIFY_WITH_TIMEOUT(hasEnded(wizard), longEnough);
            QVERIFY(!wizard->button(QWizard::BackButton)->isEnabled());
            told = statusOf(wizard);
            press(wizard, QWizard::FinishButton);
        });
        QTRY_VERIFY_WITH_TIMEOUT(told.size() > 10 && !QApplication::activeModalWidget(), longEnough);
        QVERIFY(m_people->finished());
        QVERIFY(m_window->isEnabled());
        QCOMPARE(told.first(), QString("[0%] Initializing..."));
        QVERIFY(told.contains("[25%] supplier installed"));
        QCOMPARE(told.filter(" error:").size(), 2);
        QCOMPARE(told.at(told.size() - 2),
                 QString("- permissions error: Every update tells this one; nothing is wrong."));

        // Lines of orders and purchases keep their older constraints.
        QStringList gone = missing(m_newSchema, schemaOf(*m_database));
        QCOMPARE(gone.size(), 2);
        QCOMPARE(gone.filter("detail_id_fkey").size() + gone.filter("purchase_order_id_fkey").size(), 2);
        QCOMPARE(missing(schemaOf(*m_database), m_newSchema), QStringList());
        QCOMPARE(value("SELECT string_agg(no, ', ') FROM acquisition WHERE po_id IS NULL"), QString("NB1"));
        QMap<QString, int> lost;
        QMap<QString, int> gained;
        const auto after = allRows(*m_database);
        for (auto table = before.begin(); table != before.end(); ++table) {
            if (const auto rows = missing(table.value(), after[table.key()]); !rows.isEmpty())
                lost[table.key()] = rows.size();
            if (const auto rows = missing(after[table.key()], table.value()); !rows.isEmpty())
                gained[table.key()] = rows.size();
        }
        QCOMPARE(lost, (QMap<QString, int>{{"acquisition", 1}, {"appconfig", 1}}));
        QCOMPARE(gained,
                 (QMap<QString, int>{
                     {"access", 2}, {"acquisition", 1}, {"appconfig", 1}, {"business", 1}, {"permissions", 2}}));
        QCOMPARE(value("SELECT string_agg(group_id || ' ' || grant_type, ', ') FROM access JOIN permissions "
                       "ON permissions.id = permission_id WHERE permission_name IN ('Add table', 'Manage "
                       "unit')"),
                 QString("1 2, 1 2"));
        QCOMPARE(version(), DatabaseVersion::ofProgramText());
        start();
        m_window->checkDBUpdate();
        QCOMPARE(m_people->surprises(), QStringList());
    }

    void cancellingLeavesTheDatabaseAsItWas_data()
    {
        addRows<bool>("onSecondPage", {{"on the first page", false}, {"before the work begins", true}});
    }
    void cancellingLeavesTheDatabaseAsItWas()
    {
        QFETCH(bool, onSecondPage);
        const auto before = allRows(*m_database);
        const auto schema = schemaOf(*m_database);
        for (int round = 0; round < 2; ++round) {
            m_people->expect<AppDBUpdaterWizard>([&](QWizard* wizard) {
                if (onSecondPage)
                    press(wizard, QWizard::NextButton);
                press(wizard, QWizard::CancelButton);
            });
            m_window->checkDBUpdate();
            QVERIFY(m_people->finished());
            QVERIFY(m_window->isEnabled());
            QCOMPARE(allRows(*m_database), before);
            QCOMPARE(schemaOf(*m_database), schema);
            start();
        }
    }

    void doubleCodesAreToldWithTheServersWords()
    {
        insert("supplier", "kode='S1', nama='Twin'");
        update([](QWizard* wizard) {
            QTRY_VERIFY_WITH_TIMEOUT(hasEnded(wizard), longEnough);
            const QStringList summary = statusOf(wizard).mid(statusOf(wizard).size() - 4, 3);
            QCOMPARE(summary.first(), QString("Failed steps: 2. The particulars are in the log file."));
            QCOMPARE(summary.last(), QString("- supplier error: ERROR: could not create unique index "
                                             "\"supplier_kode_key\" DETAIL: Key (kode)=(S1) is duplicated."));
            press(wizard, QWizard::FinishButton);
        });
        QCOMPARE(version(), DatabaseVersion::ofProgramText());
    }

    void whoLeavesEarlyWaitsForTheEnd_data()
    {
        const auto row = addColumns<int, bool>("button", "begun");
        row("finished in the middle", QWizard::FinishButton, true);
        row("finished before the work began", QWizard::FinishButton, false);
        row("cancelled in the middle", QWizard::CancelButton, true);
    }
    void whoLeavesEarlyWaitsForTheEnd()
    {
        QFETCH(int, button);
        QFETCH(bool, begun);
        holdSuppliers();
        update([&](QWizard* wizard) {
            if (begun)
                QTRY_VERIFY_WITH_TIMEOUT(isHeld(), longEnough);
            press(wizard, QWizard::WizardButton(button));
        });
        QTRY_VERIFY_WITH_TIMEOUT(isHeld(), longEnough);
        QVERIFY(!m_window->isEnabled());
        QVERIFY(!m_window->close());
        QVERIFY(m_people->lastText().startsWith("The database is being updated."));
        m_window->checkDBUpdate();
        QCOMPARE(m_people->surprises(), QStringList());
        run("COMMIT");
        QTRY_VERIFY_WITH_TIMEOUT(m_window->isEnabled(), longEnough);
        QTRY_VERIFY(m_people->lastText().startsWith("The update of the database has ended. Please restart the app."));
        QVERIFY(m_people->lastText().contains("permissions error:"));
        QCOMPARE(version(), DatabaseVersion::ofProgramText());
        QVERIFY(m_window->close());
    }

    void theProgramEndsOnlyAfterTheUpdate()
    {
        holdSuppliers();
        update([this](QWizard* wizard) {
            QTRY_VERIFY_WITH_TIMEOUT(isHeld(), longEnough);
            press(wizard, QWizard::FinishButton);
        });
        QTimer::singleShot(0, this, [this] {
            run("COMMIT");
            QCoreApplication::quit();
        });
        QApplication::exec();
        QCOMPARE(version(), DatabaseVersion::ofProgramText());
    }

    void aBrokenConnectionIsToldAndTheUpdateOfferedAgain()
    {
        holdSuppliers();
        update([this](QWizard* wizard) {
            QTRY_VERIFY_WITH_TIMEOUT(isHeld(), longEnough);
            m_database->killConnections();
            run("COMMIT");
            QTRY_VERIFY_WITH_TIMEOUT(hasEnded(wizard), longEnough);
            const QString told = statusOf(wizard).join('\n');
            QVERIFY(told.contains("supplier error:"));
            QVERIFY(told.contains("The connection to the database was lost on the way"));
            press(wizard, QWizard::FinishButton);
        });
        QCOMPARE(version(), QString("1.0"));
        start();
        update([](QWizard* wizard) {
            QTRY_VERIFY_WITH_TIMEOUT(hasEnded(wizard), longEnough);
            press(wizard, QWizard::FinishButton);
        });
        QCOMPARE(version(), DatabaseVersion::ofProgramText());
        QCOMPARE(missing(m_newSchema, schemaOf(*m_database)).size(), 2);
    }

private:
    [[nodiscard]] QString version() const
    {
        return value("SELECT appvalue FROM appconfig WHERE appkey = 'app_version'");
    }
    void start()
    {
        QVERIFY(m_database->open());
        m_window = std::make_unique<MainWindow>();
        m_window->show();
        QVERIFY(QTest::qWaitForWindowExposed(m_window.get()));
    }

    /** Opens the wizard, and works on its second page. */
    void update(const std::function<void(QWizard*)>& work)
    {
        m_people->expect<AppDBUpdaterWizard>([work](QWizard* wizard) {
            press(wizard, QWizard::NextButton);
            work(wizard);
        });
        m_window->checkDBUpdate();
        QVERIFY(m_people->finished());
    }

    /** Another workstation has locked the suppliers; the update waits there. */
    void holdSuppliers() { run("BEGIN; LOCK TABLE supplier IN ACCESS EXCLUSIVE MODE"); }
    [[nodiscard]] bool isHeld() const
    {
        return count("pg_locks WHERE NOT granted AND relation = 'supplier'::regclass") > 0;
    }

    std::unique_ptr<MainWindow> m_window;
    QSet<QString> m_newSchema;
};

QTEST_MAIN(TestDatabaseUpdater)
#include "tst_database_updater.moc"
