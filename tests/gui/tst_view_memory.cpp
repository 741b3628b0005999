#include "kor/widgets/KorViewMemory.h"
#include "support/DatabaseTest.h"
#include "zavel/tables/DialogMeja.h"
#include "zavel/tables/TabMeja.h"

#include <QHeaderView>
#include <QSettings>

class TestViewMemory : public DatabaseTest
{
    Q_OBJECT

protected:
    void prepare() override
    {
        m_folder = std::make_unique<QTemporaryDir>();
        KorViewMemory::setFile(file());
    }
    void tidy() override
    {
        m_page.reset();
        KorViewMemory::setFile(QString());
    }

private slots:
    void initTestCase() { keepDatabase(); }

    void aColumnPulledWiderIsAsWideTheNextDay()
    {
        openPage();
        const int before = grid()->columnWidth(1);
        pullColumn(1, 60);
        const int pulled = grid()->columnWidth(1);
        QVERIFY(pulled > before + 40);
        m_page->findChild<QPushButton*>("btnRefresh")->click();
        QCOMPARE(grid()->columnWidth(1), pulled);

        startAnew();
        openPage();
        QCOMPARE(grid()->columnWidth(1), pulled);
        QVERIFY(grid()->columnWidth(0) != pulled);
    }

    void aCodeThatIsLongerThanThoseAtFirstSightIsShownInFull()
    {
        openPage();
        const int narrow = grid()->columnWidth(1);
        run("INSERT INTO meja (kode, nama, createdby, version) VALUES ('WWWWWWWWWWWWWWWWWWWW', 'Window', 1, 1)");
        m_page->findChild<QPushButton*>("btnRefresh")->click();
        const int wide = grid()->columnWidth(1);
        QVERIFY(wide > narrow);
        const QFontMetrics letters(grid()->font());
        QVERIFY(wide > letters.horizontalAdvance("WWWWWWWWWWWWWWWWWWWW"));

        pullColumn(1, -60);
        const int pulled = grid()->columnWidth(1);
        m_page->findChild<QPushButton*>("btnRefresh")->click();
        QCOMPARE(grid()->columnWidth(1), pulled);
    }

    void whatTheProgramSetsByItselfIsNotRemembered()
    {
        openPage();
        m_page->resize(900, 500);
        m_page->findChild<QPushButton*>("btnRefresh")->click();
        DialogMeja form;
        form.show();
        form.reject();
        startAnew();
        QVERIFY(!QFile::exists(file()));
    }

    void aFormOpensInTheSizeThatItWasLeftIn()
    {
        QSize left;
        {
            DialogMeja form;
            form.show();
            left = form.size() + QSize(120, 60);
            form.resize(left);
            form.reject();
        }
        startAnew();
        DialogMeja form;
        form.show();
        QCOMPARE(form.size(), left);
    }

    void aFormNeverExceedsTheScreen()
    {
        {
            QSettings settings(file(), QSettings::IniFormat);
            settings.setValue("sizes/DialogMeja", QSize(9000, 9000));
        }
        startAnew();
        DialogMeja form;
        form.show();
        QVERIFY(form.width() < 9000 && form.height() < 9000);
    }

    void withoutAFileNothingIsRemembered()
    {
        KorViewMemory::setFile(QString());
        openPage();
        const int before = grid()->columnWidth(1);
        pullColumn(1, 60);
        m_page.reset();
        openPage();
        QCOMPARE(grid()->columnWidth(1), before);
    }

private:
    QString file() const { return m_folder->filePath("view.ini"); }
    QTableView* grid() const { return m_page->findChild<QTableView*>("tblMeja"); }
    void openPage()
    {
        m_page = std::make_unique<TabMeja>();
        m_page->show();
        QVERIFY(QTest::qWaitForWindowExposed(m_page.get()));
    }
    void startAnew()
    {
        m_page.reset();
        KorViewMemory::setFile(QString());
        KorViewMemory::setFile(file());
    }
    void pullColumn(int column, int by)
    {
        QHeaderView* header = grid()->horizontalHeader();
        const QPoint edge(header->sectionViewportPosition(column) + header->sectionSize(column) - 1,
                          header->height() / 2);
        QTest::mouseMove(header->viewport(), edge);
        QTest::mousePress(header->viewport(), Qt::LeftButton, Qt::NoModifier, edge);
        for (int step = 1; step <= 4; ++step) {
            QMouseEvent move(QEvent::MouseMove, edge + QPoint(by * step / 4, 0), Qt::NoButton, Qt::LeftButton,
                             Qt::NoModifier);
            QApplication::sendEvent(header->viewport(), &move);
        }
        QTest::mouseRelease(header->viewport(), Qt::LeftButton, Qt::NoModifier, edge + QPoint(by, 0));
    }

    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<TabMeja> m_page;
};

QTEST_MAIN(TestViewMemory)
#include "tst_view_memory.moc"
