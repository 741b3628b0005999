#pragma once

#include "app/context/AppContext.h"
#include "kor/business/KorServiceDirectory.h"
#include "support/Builders.h"
#include "support/ModalDriver.h"
#include "support/Rows.h"
#include "support/TestDatabase.h"

// With what most forms consist of.
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
 * What most tests stand on, new for each test function: a database with an administrator logged in, a person in front
 * of the modal windows, and a folder that takes what is printed. A test adds what is its own in prepare() and takes its
 * windows away in tidy(), while the rest still stands.
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
    /** Lets one database serve all functions of the test; for initTestCase(). */
    void keepDatabase();

    // At the other workstation, as TestDatabase does it.
    void run(const QString& statement) const { m_database->run(statement); }
    [[nodiscard]] QString value(const QString& statement) const { return m_database->value(statement).toString(); }
    /** Of a table, or of what follows FROM. */
    [[nodiscard]] int count(const QString& rows) const { return value("SELECT count(*) FROM " + rows).toInt(); }

    std::unique_ptr<QTemporaryDir> m_spool;
    std::unique_ptr<TestDatabase> m_database;
    /** Owns records that a test makes. */
    std::unique_ptr<QObject> m_records;
    /** For tests that write their restaurant with the builders; null until prepare() makes it. */
    std::unique_ptr<Builders> m_make;
    std::unique_ptr<ModalDriver> m_people;

private slots:
    void init();
    void cleanup();

private:
    bool m_isKept = false;
};

/** A test with one page or form at a time. */
template <class Page>
class PageTest : public DatabaseTest
{
protected:
    void tidy() override { m_page.reset(); }

    /** Shows the page, or another one of its kind, in a window that takes the keys. */
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
