#include "kor/widgets/KorViewMemory.h"
#include "support/DatabaseTest.h"
#include "zavel/tables/TabMeja.h"

#include <QHeaderView>
#include <QSettings>

class TestViewMemory : public PageTest<TabMeja>
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
        show();
        const int before = m_grid->columnWidth(1);
        pullColumn(1, 60);
        const int pulled = m_grid->columnWidth(1);
        QVERIFY(pulled > before + 40);
        click(m_page.get(), "btnRefresh");
        QCOMPARE(m_grid->columnWidth(1), pulled);

        startAnew();
        show();
        QCOMPARE(m_grid->columnWidth(1), pulled);
        QVERIFY(m_grid->columnWidth(0) != pulled);
    }

    void aCodeThatIsLongerThanThoseAtFirstSightIsShownInFull()
    {
        show();
        const int narrow = m_grid->columnWidth(1);
        insert("meja", "kode='WWWWWWWWWWWWWWWWWWWW', nama='Window'");
        click(m_page.get(), "btnRefresh");
        const int wide = m_grid->columnWidth(1);
        QVERIFY(wide > narrow);
        const QFontMetrics letters(m_grid->font());
        QVERIFY(wide > letters.horizontalAdvance("WWWWWWWWWWWWWWWWWWWW"));

        pullColumn(1, -60);
        const int pulled = m_grid->columnWidth(1);
        click(m_page.get(), "btnRefresh");
        QCOMPARE(m_grid->columnWidth(1), pulled);
    }

    void whatTheProgramSetsByItselfIsNotRemembered()
    {
        show();
        m_page->resize(900, 500);
        click(m_page.get(), "btnRefresh");
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
        show();
        const int before = m_grid->columnWidth(1);
        pullColumn(1, 60);
        m_page.reset();
        show();
        QCOMPARE(m_grid->columnWidth(1), before);
    }

private:
    QString file() const { return m_folder->filePath("view.ini"); }
    void startAnew()
    {
        m_page.reset();
        KorViewMemory::setFile(QString());
        KorViewMemory::setFile(file());
    }
    void pullColumn(int column, int by)
    {
        QHeaderView* header = m_grid->horizontalHeader();
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
};

QTEST_MAIN(TestViewMemory)
#include "tst_view_memory.moc"
