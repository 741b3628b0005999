#include "kor/widgets/KorDialog.h"
#include "support/DatabaseTest.h"
#include "support/DocumentFamilies.h"
#include "support/SalesRows.h"

/** Tests that apply to all pages of documents. */
class TestDocumentPages : public PageTest<QWidget>
{
    Q_OBJECT

protected:
    void prepare() override
    {
        insertShop(*m_database);
        insertSeller(*m_database, 1, "ann");
        for (int n : {1, 2})
            family().lay(*m_database, n);
    }

private slots:
    void aKeyAsksForItsOwnRight_data() { addRows(&DocumentFamily::name); }
    void aKeyAsksForItsOwnRight()
    {
        const KorBusinessLogic* service = KorServiceDirectory::get(family().service);
        for (const KeyRight& asked : family().rights) {
            for (int given : asked.isForOwn&& asked.key != Qt::Key_F12 ? QList<int>{0, 1} : QList<int>{0}) {
                QList<QPair<int, int>> grants{{asked.right, given}};
                QString caption;
                for (const KorPermission& right : service->getPermissions()) {
                    if (right.first == asked.right)
                        caption = right.second;
                    else
                        grants.append({right.first, 2});
                }
                loginWithRights(family().service, grants);
                AppContext::instance()->accessCaptions()->insert(family().service + QString::number(asked.right),
                                                                 caption);
                show();
                m_people->clear();
                press(asked.key);
                QTRY_COMPARE(m_people->texts(), QStringList("You don't have access.\r\nRequired permission: " +
                                                            family().service + '.' + caption));
                QVERIFY2(m_people->surprises().isEmpty(), qPrintable(caption));
            }
        }
        QCOMPARE(rows(), 2);
    }

    void aDocumentThatHasGoneIsTold_data() { addRows(&DocumentFamily::lost); }
    void aDocumentThatHasGoneIsTold()
    {
        show();
        run("TRUNCATE " + family().table + " CASCADE");
        press(Qt::Key_F2);
        QTRY_COMPARE(m_people->boxes().size(), 1);
        QVERIFY2(m_people->lastText().startsWith(family().lost), qPrintable(m_people->lastText()));
        QCOMPARE(m_people->lastTitle(), QString("Error"));
        QVERIFY(m_people->surprises().isEmpty());
    }

    void aDocumentThatHasGoneIsNotDeleted_data() { addRows(&DocumentFamily::lostAtDelete); }
    void aDocumentThatHasGoneIsNotDeleted()
    {
        show();
        run("TRUNCATE " + family().table + " CASCADE");
        press(Qt::Key_Delete);
        QTRY_COMPARE(m_people->boxes().size(), 1);
        QVERIFY2(m_people->lastText().startsWith(family().lostAtDelete), qPrintable(m_people->lastText()));
        QCOMPARE(rowsOf(m_page.get()), 0);
    }

    void theSlowerOfTwoUsersIsToldAndTheFormStays_data()
    {
        const auto row = addColumns<int>("family");
        for (int i = 0; i < documentFamilies().size(); ++i) {
            if (*documentFamilies().at(i).field)
                row(qPrintable(documentFamilies().at(i).name), i);
        }
    }
    void theSlowerOfTwoUsersIsToldAndTheFormStays()
    {
        show();
        m_people->expect<KorDialog>([this](KorDialog* form) {
            QApplication::setActiveWindow(form);
            auto* field = form->findChild<QWidget*>(family().field);
            field->setFocus(Qt::TabFocusReason);
            QTest::keyClick(field, Qt::Key_A, Qt::ControlModifier);
            QTest::keyClicks(field, "9");
            run("UPDATE " + family().table + " SET version = version + 1, updatedby = 5");
            if (form->findChild<QDialogButtonBox*>())
                ::press(form, QDialogButtonBox::Ok);
            else
                QTest::keyClick(field, Qt::Key_Return);
            QVERIFY(form->isVisible());
            const auto* notes = qobject_cast<QPlainTextEdit*>(field);
            QCOMPARE(notes ? notes->toPlainText() : static_cast<QLineEdit*>(field)->text(), QString("9"));
            giveUp(form);
        });
        press(Qt::Key_F2);
        QTRY_VERIFY(m_people->finished());
        QCOMPARE(m_people->boxes().size(), 1);
        const QString told = m_people->lastText().simplified();
        QVERIFY2(told.startsWith((family().refused + " Table: " + family().table).trimmed() +
                                 " has been updated by user id"),
                 qPrintable(told));
        QCOMPARE(m_people->lastTitle(), QString("Error"));
        QCOMPARE(m_database->value("SELECT max(version) FROM " + family().table).toInt(), 2);
    }

    void aLostConnectionIsNotALostDocument_data() { addRows(&DocumentFamily::lost); }
    void aLostConnectionIsNotALostDocument()
    {
        show();
        const int shown = rowsOf(m_page.get());
        m_database->killConnections();
        press(Qt::Key_F2);
        QTRY_COMPARE(m_people->boxes().size(), 1);
        QVERIFY2(m_people->lastText().startsWith("The connection to the database is lost."),
                 qPrintable(m_people->lastText()));
        press(Qt::Key_F5);
        QCOMPARE(rowsOf(m_page.get()), shown);
        run("ALTER TABLE " + family().table + " RENAME TO elsewhere");
        press(Qt::Key_F5);
        QTRY_COMPARE(m_people->boxes().size(), 2);
        QVERIFY2(m_people->lastText().contains(family().table), qPrintable(m_people->lastText()));
        QCOMPARE(m_people->lastTitle(), QString("Error"));
    }

    void deletingAsksForOneAfterTheOther_data() { addRows(&DocumentFamily::question); }
    void deletingAsksForOneAfterTheOther()
    {
        show();
        gridOf(m_page.get())->selectAll();
        m_people->answer(QMessageBox::No);
        m_people->answer(QMessageBox::Yes);
        QTest::keyClick(gridOf(m_page.get()), Qt::Key_Delete);
        QTRY_COMPARE(rows(), 1);
        QCOMPARE(m_people->boxes().size(), 2);
        for (const SeenBox& box : m_people->boxes()) {
            QVERIFY2(box.text.startsWith(family().question), qPrintable(box.text));
            QCOMPARE(box.title, QString("Delete"));
        }
    }

private:
    /** One row per family for which this text is set. */
    static void addRows(QString DocumentFamily::*word)
    {
        addColumns<int>("family");
        for (int i = 0; i < documentFamilies().size(); ++i) {
            if (!(documentFamilies().at(i).*word).isEmpty())
                addRow(qPrintable(documentFamilies().at(i).name), i);
        }
    }

    static const DocumentFamily& family()
    {
        QFETCH(int, family);
        return documentFamilies().at(family);
    }

    void show()
    {
        m_page = family().makePage();
        showPage(m_page.get());
        choose(m_page.get(), 0);
    }

    void press(int key)
    {
        m_page->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(m_page.get()));
        gridOf(m_page.get())->setFocus();
        if (!gridOf(m_page.get())->selectionModel()->hasSelection())
            choose(m_page.get(), 0);
        QTest::keyClick(gridOf(m_page.get()), Qt::Key(key));
    }

    int rows() { return count(family().table); }
};

QTEST_MAIN(TestDocumentPages)
#include "tst_document_pages.moc"
