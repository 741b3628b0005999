#pragma once

#include "app/context/AppContext.h"
#include "kor/business/KorServiceDirectory.h"
#include "support/Builders.h"
#include "support/ModalDriver.h"
#include "support/Rows.h"
#include "support/TestDatabase.h"

// Included for all tests: widgets that most forms use.
#include <QApplication>
#include <QComboBox>
#include <QDateEdit>
#include <QDialogButtonBox>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTabWidget>
#include <QTableView>
#include <QTemporaryDir>
#include <QTest>

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
    /** The number of rows; the parameter is a table or any text after FROM. */
    [[nodiscard]] int count(const QString& rows) const { return value("SELECT count(*) FROM " + rows).toInt(); }

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
    [[nodiscard]] QStringList column(int column) const
    {
        QStringList texts;
        for (int row = 0; row < m_grid->model()->rowCount(); ++row)
            texts.append(cell(row, column));
        return texts;
    }

    std::unique_ptr<Page> m_page;
    QTableView* m_grid = nullptr;
};
