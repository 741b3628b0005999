#include "shell/window/HelpWindow.h"
#include "shell/window/Manual.h"
#include "support/Rows.h"

#include <QDialog>
#include <QDirIterator>
#include <QFileInfo>
#include <QLineEdit>
#include <QRegularExpression>
#include <QTabWidget>
#include <QTemporaryDir>
#include <QTextBrowser>
#include <QTimer>
#include <QTreeWidget>

namespace
{
QString folder() { return qEnvironmentVariable("ZAVEL_SOURCE_DIR") + "/help"; }

QString read(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

QStringList allOf(const QString& text, const QString& pattern)
{
    QStringList found;
    auto matches = QRegularExpression(pattern).globalMatch(text);
    while (matches.hasNext())
        found += matches.next().captured(1);
    return found;
}

QStringList anchorsOf(const QString& text) { return allOf(text, "<a name=\"(\\w+)\">"); }

/** Whether there is this page, and this part of it. */
bool isPlace(const QDir& dir, const QString& link)
{
    const QString text = read(dir.filePath(link.section('#', 0, 0)));
    return !text.isEmpty() && (!link.contains('#') || anchorsOf(text).contains(link.section('#', 1)));
}

/** The pictures that the list promises. */
QStringList listedPictures() { return allOf(read(folder() + "/pictures/pictures.txt"), "(?m)^([\\w-]+) +\\|"); }

QTextBrowser* pageOf(const QWidget* window) { return window->findChild<QTextBrowser*>("page"); }

QString placeOf(const QWidget* window)
{
    const QUrl source = pageOf(window)->source();
    return source.fileName() + (source.hasFragment() ? '#' + source.fragment() : QString());
}
} // namespace

class TestHelpWindow : public QObject
{
    Q_OBJECT

private slots:
    void everyLinkAndPictureOfThePageIsThere_data()
    {
        const auto row = addColumns<QString>("path");
        for (const char* language : {"en", "id"}) {
            for (const QString& page : HelpWindow::pages())
                row(qPrintable(QString("%1: %2").arg(language, page)),
                    QString("%1/%2/%3").arg(folder(), language, page));
        }
    }
    void everyLinkAndPictureOfThePageIsThere()
    {
        QFETCH(QString, path);
        const QString text = read(path);
        const QDir here = QFileInfo(path).dir();
        QVERIFY(!text.isEmpty());
        for (const QString& link : allOf(text, "href=\"([^\"]+)\""))
            QVERIFY2(isPlace(here, link), qPrintable(link));
        for (const QString& picture : allOf(text, "src=\"([^\"]+)\"")) {
            QVERIFY2(picture.startsWith("../pictures/" + here.dirName() + '/'), qPrintable(picture));
            QVERIFY2(QFileInfo::exists(here.filePath(picture)), qPrintable(picture));
        }
    }

    void bothLanguagesTellTheSame_data() { everyPage(); }
    void bothLanguagesTellTheSame()
    {
        QFETCH(QString, page);
        const QString english = read(folder() + "/en/" + page);
        const QString indonesian = read(folder() + "/id/" + page);
        for (const char* same : {"<a name=\"(\\w+)\">", "src=\"../pictures/../([^\"]+)\"", "href=\"([^\"]+)\"",
                                 "(<li>|<tr>|<h\\d>)", "class=\"key\">&nbsp;([^<]+)&nbsp;<"})
            QCOMPARE(allOf(indonesian, same), allOf(english, same));
    }

    void everyListedPictureIsThereAndUsed()
    {
        QString all;
        for (const QString& page : HelpWindow::pages())
            all += read(folder() + "/en/" + page);
        QStringList used = allOf(all, "src=\"../pictures/en/([\\w-]+).png\"");
        QStringList listed = listedPictures();
        for (QStringList* list : {&used, &listed}) {
            list->removeDuplicates();
            list->sort();
        }
        QCOMPARE(used, listed);
        for (const char* language : {"/en", "/id"}) {
            QStringList there = QDir(folder() + "/pictures" + language).entryList({"*.png"});
            there.replaceInStrings(".png", "").sort();
            QCOMPARE(there, listed);
        }
    }

    void thePicturesAreSmall()
    {
        qint64 all = 0;
        QDirIterator pictures(folder() + "/pictures", {"*.png"}, QDir::Files, QDirIterator::Subdirectories);
        while (pictures.hasNext()) {
            const QString path = pictures.next();
            QVERIFY2(pictures.fileInfo().size() < 60 * 1024, qPrintable(path));
            QVERIFY2(QImage(path).width() <= 900, qPrintable(path));
            all += pictures.fileInfo().size();
        }
        QVERIFY(all < 1536 * 1024);
    }

    void theContentsLeadToEveryPartOfEveryPage()
    {
        HelpWindow window(folder(), nullptr);
        auto* contents = window.findChild<QTreeWidget*>("contents");
        QCOMPARE(contents->topLevelItemCount(), HelpWindow::pages().size());
        for (int i = 0; i < contents->topLevelItemCount(); ++i) {
            QTreeWidgetItem* page = contents->topLevelItem(i);
            const QString name = HelpWindow::pages().at(i);
            QCOMPARE(page->childCount(), anchorsOf(read(folder() + "/en/" + name)).size());
            emit contents->itemActivated(page->child(page->childCount() - 1), 0);
            QCOMPARE(placeOf(&window).section('#', 0, 0), name);
            QCOMPARE(contents->currentItem(), page->child(page->childCount() - 1));
        }
    }

    void theManualFollowsTheLanguageAndFallsBackToEnglish()
    {
        HelpWindow window(folder(), nullptr);
        window.showPage("owner.html#backup");
        for (const char* language : {"id", "fr", "en"}) {
            window.setLanguage(language);
            const QString spoken = language == QString("id") ? "id" : "en";
            QVERIFY(pageOf(&window)->source().path().endsWith(QString("/%1/owner.html").arg(spoken)));
            QCOMPARE(placeOf(&window), QString("owner.html#backup"));
        }
    }

    void aSearchGoesRoundThePage()
    {
        HelpWindow window(folder(), nullptr);
        window.showPage("waiter.html");
        auto* find = window.findChild<QLineEdit*>("find");
        find->setText("no chili");
        for (int time = 0; time < 2; ++time) {
            QTest::keyClick(find, Qt::Key_Return);
            QCOMPARE(pageOf(&window)->textCursor().selectedText(), QString("no chili"));
        }
        find->setText("submarine");
        QTest::keyClick(find, Qt::Key_Return);
        QVERIFY(!find->styleSheet().isEmpty());
        find->setText("board");
        QVERIFY(find->styleSheet().isEmpty());
    }

    void aMissingManualSaysWhereItBelongs()
    {
        const QTemporaryDir empty;
        HelpWindow window(empty.filePath("help"), nullptr);
        window.showPage("waiter.html");
        QVERIFY(pageOf(&window)->toPlainText().contains(empty.filePath("help")));
    }

    void everyTopicIsAPlaceInTheManual()
    {
        for (const QString& topic : Manual::topics())
            QVERIFY2(isPlace(folder() + "/en", topic), qPrintable(topic));
    }

    void theKeyOpensWhatThePageInFrontIsAbout()
    {
        QTabWidget pages;
        Manual manual(folder(), &pages);
        manual.open();
        auto* window = pages.findChild<HelpWindow*>();
        QVERIFY(window->isVisible());
        QCOMPARE(placeOf(window), QString("index.html"));
        pages.addTab(new QWidget, "a page without a part of its own");
        manual.open();
        QCOMPARE(placeOf(window), QString("owner.html"));
        QCOMPARE(Manual::topicOf("TabMakanDitempat"), QString("waiter.html"));
        QCOMPARE(Manual::topicOf("TabPesananMasuk"), QString("kitchen.html"));
        QCOMPARE(Manual::topicOf("DialogBayarMakanDitempat"), QString("cashier.html#table"));
        manual.setLanguage("id");
        QVERIFY(pageOf(window)->source().path().endsWith("/id/owner.html"));
        QCOMPARE(pages.findChildren<HelpWindow*>().size(), 1);
    }

    void aFormGetsAManualOfItsOwn()
    {
        QTabWidget pages;
        Manual manual(folder(), &pages);
        QDialog form(&pages);
        auto* field = new QLineEdit(&form);
        bool opened = false;
        QTimer::singleShot(0, &form, [&] {
            QTest::keyClick(field, Qt::Key_F1);
            const auto* window = form.findChild<HelpWindow*>();
            opened = window && window->isVisible() && window->window() == window;
            form.reject();
        });
        form.exec();
        QVERIFY(opened);
        QVERIFY(!pages.findChild<HelpWindow*>(QString(), Qt::FindDirectChildrenOnly));
    }

private:
    static void everyPage()
    {
        addColumns<QString>("page");
        for (const QString& page : HelpWindow::pages())
            addRow(qPrintable(page), page);
    }
};

QTEST_MAIN(TestHelpWindow)
#include "tst_help_window.moc"
