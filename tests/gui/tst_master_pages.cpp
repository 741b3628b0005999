#include "app/widgets/AppListTab.h"
#include "kor/widgets/KorDialog.h"
#include "support/DatabaseTest.h"
#include "support/MasterFamilies.h"

#include <QAbstractItemModelTester>
#include <QAbstractProxyModel>

/** The list pages of all families, worked on with the keyboard alone. */
class TestMasterPages : public PageTest<AppListTab>
{
    Q_OBJECT

protected:
    void prepare() override
    {
        const MasterFamily& family = currentFamily();
        run("TRUNCATE " + family.table + " RESTART IDENTITY CASCADE");
        run(family.insertStatement("k1", "Owner's 50% share"));
        run(family.insertStatement("k2", "Everyday"));
        m_page = family.makePage();
        showForm(m_page.get());
        m_grid = m_page->findChild<QTableView*>(family.grid);
        QVERIFY(m_grid);
    }

private slots:
    void initTestCase() { keepDatabase(); }

    void thePageShowsItsRows_data() { addFamilyRows(); }
    void thePageShowsItsRows()
    {
        const MasterFamily& family = currentFamily();
        const QStringList shown = headers();
        QCOMPARE(m_page->windowTitle(), family.title.isEmpty() ? m_page->windowTitle() : family.title);
        QCOMPARE(shown, family.headers.isEmpty() ? shown : family.headers);
        QCOMPARE(label("lblCount"), QString("2 Items"));
        const int row = rowOf("Everyday");
        QCOMPARE(text(row, "ID"), QString("2"));
        QCOMPARE(text(row, "Code"), QString("k2"));
        if (shown.contains("Phone"))
            QCOMPARE(text(row, "Phone"), QString("0812 555"));

        // The arrows begin at the first row.
        QVERIFY(m_grid->hasFocus() && !m_grid->selectionModel()->hasSelection());
        QTest::keyClick(m_grid, Qt::Key_Down);
        QCOMPARE(m_grid->selectionModel()->selectedRows().value(0).row(), 0);
        auto* model = qobject_cast<QAbstractProxyModel*>(m_grid->model())->sourceModel();
        const QAbstractItemModelTester tester(model, QAbstractItemModelTester::FailureReportingMode::QtTest);
        m_grid->sortByColumn(1, Qt::DescendingOrder);
    }

    void aRecordIsAddedWithF12_data() { addFamilyRows(); }
    void aRecordIsAddedWithF12()
    {
        const MasterFamily& family = currentFamily();
        m_people->expect<KorDialog>([&family](KorDialog* form) {
            family.fill(form, "K3", "Brand new");
            QTest::keyClick(form, Qt::Key_Return);
        });
        QTest::keyClick(m_page.get(), Qt::Key_F12);
        QTRY_COMPARE(label("lblCount"), QString("3 Items"));
        QVERIFY2(m_people->finished() && m_people->boxes().isEmpty(), qPrintable(m_people->texts().join('\n')));
        QCOMPARE(stored("nama", "K3"), QString("Brand new"));
        QCOMPARE(stored("createdby", "K3"), QString("1"));
    }

    void aTakenCodeIsRefusedAnEditKeepsItAndWhatTheFormReadDiesWithIt_data() { addFamilyRows(); }
    void aTakenCodeIsRefusedAnEditKeepsItAndWhatTheFormReadDiesWithIt()
    {
        const MasterFamily& family = currentFamily();
        const int shown = AppContext::instance()->liveEntities().size();
        m_people->expect<KorDialog>([&family](KorDialog* form) {
            family.fill(form, "K1", "Brand new");
            QTest::keyClick(form, Qt::Key_Return);
        });
        m_people->expect<KorDialog>([](KorDialog* form) { QTest::keyClick(form, Qt::Key_Escape); });
        QTest::keyClick(m_page.get(), Qt::Key_F12);
        QTRY_VERIFY(m_people->finished());

        comeBack();
        m_people->expect<KorDialog>([&family](KorDialog* form) {
            typeInto(form, family.nameField, "Brand new");
            QTest::keyClick(form, Qt::Key_Return);
        });
        m_grid->selectRow(rowOf("Owner's 50% share"));
        QTest::keyClick(m_grid, Qt::Key_F2);
        QTRY_VERIFY(rowOf("Brand new") >= 0);
        QCOMPARE(m_people->boxes().size(), 1);
        QVERIFY(m_people->lastText().contains("already"));
        QCOMPARE(stored("nama || ' ' || version", "k1"), QString("Brand new 2"));
        QCOMPARE(count(family.table), 2);
        QCOMPARE(AppContext::instance()->liveEntities().size(), shown);
    }

    void theSlowerOfTwoWorkstationsIsTold_data() { addFamilyRows(); }
    void theSlowerOfTwoWorkstationsIsTold()
    {
        const MasterFamily& family = currentFamily();
        m_people->expect<KorDialog>([this, &family](KorDialog* form) {
            run("UPDATE " + family.table + " SET version = 2, updatedby = 5 WHERE kode = 'k2'");
            typeInto(form, family.nameField, "Mine");
            QTest::keyClick(form, Qt::Key_Return);
        });
        m_people->expect<KorDialog>([](KorDialog* form) { QTest::keyClick(form, Qt::Key_Escape); });
        m_grid->selectRow(rowOf("Everyday"));
        QTest::keyClick(m_grid, Qt::Key_F2);
        QTRY_VERIFY(m_people->finished());
        QCOMPARE(m_people->texts(),
                 QStringList{"Table: " + family.table + " has been updated by user id: 2  at: 5\r\n"});
        QCOMPARE(stored("nama", "k2"), QString("Everyday"));
    }

    void aRowThatHasGoneIsTold_data() { addFamilyRows(); }
    void aRowThatHasGoneIsTold()
    {
        const MasterFamily& family = currentFamily();
        run("DELETE FROM " + family.table + " WHERE kode = 'k2'");
        m_grid->selectRow(rowOf("Everyday"));
        QTest::keyClick(m_grid, Qt::Key_F2);
        QTRY_COMPARE(m_people->boxes().size(), 1);
        QString told = family.lostRow;
        QCOMPARE(m_people->lastText(), told.replace("%1", "2"));
        QCOMPARE(m_people->lastTitle(), QString("Error"));
    }

    void deletingAsksByName_data() { addFamilyRows(); }
    void deletingAsksByName()
    {
        const MasterFamily& family = currentFamily();
        m_people->answer(QMessageBox::No);
        m_grid->selectRow(rowOf("Owner's 50% share"));
        QTest::keyClick(m_grid, Qt::Key_Delete);
        QTRY_VERIFY(m_people->finished());
        QTRY_COMPARE(m_grid->model()->rowCount(), 2);

        comeBack();
        m_people->answer(QMessageBox::Yes);
        m_grid->selectRow(rowOf("Owner's 50% share"));
        QTest::keyClick(m_grid, Qt::Key_Delete);
        QTRY_COMPARE(m_grid->model()->rowCount(), 1);
        const QString question = "Are you sure you want to delete this " + family.called + ": Owner's 50% share ?";
        QCOMPARE(m_people->texts().size(), 2);
        for (const QString& asked : m_people->texts())
            QVERIFY2(family.called.isEmpty() ? asked.contains("Owner's 50% share") : asked == question,
                     qPrintable(asked));
        QCOMPARE(count(family.table), 1);
    }

    void whoHasNoRightIsRefusedByItsName_data() { addFamilyRows(); }
    void whoHasNoRightIsRefusedByItsName()
    {
        const MasterFamily& family = currentFamily();
        const int keys[] = {Qt::Key_F12, Qt::Key_F2, Qt::Key_Delete};
        for (int operation = 0; operation < 3; ++operation) {
            // Every right but the one in question.
            loginWithRights(family.service, others(family, operation));
            captions(family);
            comeBack();
            m_grid->selectRow(rowOf("Everyday"));
            QTest::keyClick(m_grid, static_cast<Qt::Key>(keys[operation]));
            QTRY_COMPARE(m_people->boxes().size(), operation + 1);
            QCOMPARE(m_people->lastText(), "You don't have access.\r\nRequired permission: " + family.service + '.' +
                                               family.caption(operation));
        }
        QVERIFY(m_people->finished());
        QCOMPARE(count(family.table), 2);
    }

    void thePageIsFilteredRefreshedAndLeftByKeys_data() { addFamilyRows(); }
    void thePageIsFilteredRefreshedAndLeftByKeys()
    {
        filter("owner's 50%");
        QTRY_COMPARE(m_grid->model()->rowCount(), 1);
        QVERIFY(m_grid->hasFocus());
        filter("'; --");
        QTRY_COMPARE(label("lblCount"), QString("0 Items"));
        filter("K");
        QTRY_COMPARE(m_grid->model()->rowCount(), 2);

        run(currentFamily().insertStatement("k3", "From the other workstation"));
        QTest::keyClick(m_grid, Qt::Key_F5);
        QTRY_COMPARE(m_grid->model()->rowCount(), 3);

        QSignalSpy closed(m_page.get(), &KorTab::onclose);
        QTest::keyClick(m_grid, Qt::Key_Escape);
        QTRY_COMPARE(closed.count(), 1);
    }

private:
    /** Activates the page again after a message box, so that it gets keys. */
    void comeBack()
    {
        // Process the events of the closed box first.
        QCoreApplication::processEvents();
        bringToFront(m_page.get());
    }
    [[nodiscard]] QStringList headers() const { return headersOf(*m_grid->model()); }
    /** What the grid shows under this header. */
    [[nodiscard]] QString text(int row, const QString& header) const
    {
        return m_grid->model()->index(row, headers().indexOf(header)).data().toString();
    }
    [[nodiscard]] int rowOf(const QString& name) const { return column(headers().indexOf("Name")).indexOf(name); }
    [[nodiscard]] QString stored(const QString& column, const QString& code)
    {
        return value("SELECT " + column + " FROM " + currentFamily().table + " WHERE kode = '" + code + '\'');
    }
    void filter(const QString& text)
    {
        QTest::keyClick(m_page.get(), Qt::Key_F, Qt::ControlModifier);
        QTRY_VERIFY(m_page->findChild<QLineEdit*>("txtFilter")->hasFocus());
        typeInto(m_page.get(), "txtFilter", text);
        confirm(m_page.get(), "txtFilter");
    }
    /** Full grants of all rights but the operation's; a family with one right for all gets none. */
    static QList<QPair<int, int>> others(const MasterFamily& family, int operation)
    {
        QList<QPair<int, int>> grants;
        for (int key = 0; key < 3; ++key) {
            if (key != (family.rights.size() == 1 ? 0 : operation))
                grants.append({key, 2});
        }
        return grants;
    }
    static void captions(const MasterFamily& family)
    {
        for (int key = 0; key < family.rights.size(); ++key)
            AppContext::instance()->accessCaptions()->insert(family.service + QString::number(key),
                                                             family.rights.at(key));
    }
};

QTEST_MAIN(TestMasterPages)
#include "tst_master_pages.moc"
