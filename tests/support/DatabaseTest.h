#pragma once

#include "app/context/AppContext.h"
#include "app/context/DatabaseManager.h"
#include "app/context/DatabaseVersion.h"
#include "kor/business/KorServiceDirectory.h"
#include "support/Builders.h"
#include "support/Hands.h"
#include "support/LedgerRows.h"
#include "support/Rows.h"
#include "support/ShopRows.h"
#include "support/TestCluster.h"
#include "support/TestDatabase.h"

// Included for all tests: widgets that most forms use.
#include <QCheckBox>
#include <QComboBox>
#include <QDateEdit>
#include <QDir>
#include <QPlainTextEdit>
#include <QRegularExpression>
#include <QSignalSpy>
#include <QTabWidget>
#include <QTemporaryDir>
#include <QTimer>

#include <memory>

/**
 * Base of most tests. Each test function gets a new database with an administrator logged in, a ModalDriver for modal
 * windows, and a folder for printed slips. A test adds its own setup in prepare() and deletes its windows in tidy(),
 * while the rest still exists.
 */
class DatabaseTest : public QObject
{
    Q_OBJECT

public:
    DatabaseTest();
    ~DatabaseTest() override;

protected:
    virtual void prepare() {}
    virtual void tidy() {}
    /** Uses one database for all functions of the test; call it in initTestCase(). */
    void keepDatabase();

    // Run on the connection of another workstation, see TestDatabase.
    void run(const QString& statement) const { m_database->run(statement); }
    [[nodiscard]] QString value(const QString& statement) const { return m_database->value(statement).toString(); }
    void insert(const QString& table, const QString& values) const { insertRows(*m_database, table, values); }
    /** The number of rows; the parameter is a table or any text after FROM. */
    [[nodiscard]] int count(const QString& rows) const { return value("SELECT count(*) FROM " + rows).toInt(); }

    /** A record of the test's own that stands for the stored one of this id. */
    template <class Entity>
    [[nodiscard]] Entity* known(int id) const
    {
        auto* entity = new Entity(m_records.get());
        entity->setId(id);
        return entity;
    }
    [[nodiscard]] Money* rupiah(double amount) const { return new Money(m_records.get(), amount, "Rp"); }
    /** What was printed, slip after slip. */
    [[nodiscard]] QStringList slips() const;
    /** What was printed since the last look. */
    QString takeSlips();
    /** From now on these printers are there, a name a line. */
    void listPrinters(const QByteArray& names) const;

    std::unique_ptr<QTemporaryDir> m_spool;
    std::unique_ptr<TestDatabase> m_database;
    /** Owns records that a test creates. */
    std::unique_ptr<QObject> m_records;
    /** For tests that use the builders; null until prepare() creates them. */
    std::unique_ptr<Builders> m_make;
    std::unique_ptr<ModalDriver> m_people;

private slots:
    void init();
    void cleanup();

private:
    bool m_isKept = false;
};

/** Base of tests with one page or form at a time. */
template <class Page>
class PageTest : public DatabaseTest
{
protected:
    void tidy() override { m_page.reset(); }

    /** Shows the page, or another class of page, in an active window. */
    template <class Shown = Page>
    void show()
    {
        m_page = std::make_unique<Shown>();
        m_page->resize(1100, 600);
        m_page->show();
        QVERIFY(QTest::qWaitForWindowActive(m_page.get()));
        m_grid = m_page->template findChild<QTableView*>();
    }

    [[nodiscard]] QString cell(int row, int column) const
    {
        return m_grid->model()->index(row, column).data().toString();
    }
    [[nodiscard]] QStringList column(int column) const { return columnOf(m_grid, column); }
    [[nodiscard]] QString label(const char* name) const { return labelled(m_page.get(), name); }

    /** Works on the form that the work is for, behind the button of the page, until it is closed. */
    template <class Work>
    void onForm(const char* button, const Work& work)
    {
        ::onForm<std::remove_pointer_t<decltype(formOf(&Work::operator()))>>(*m_people, m_page.get(), button, work);
    }

    std::unique_ptr<Page> m_page;
    QTableView* m_grid = nullptr;

private:
    template <class Work, class Form>
    static Form* formOf(void (Work::*)(Form*) const);
};
