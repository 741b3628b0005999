#include "support/Rows.h"

#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QImage>
#include <QMap>
#include <QRegularExpression>

namespace
{
QString sourceFolder() { return qEnvironmentVariable("ZAVEL_SOURCE_DIR") + QStringLiteral("/src"); }

/** Any text from ":/" to an image suffix: in a string, a style sheet's url() or a form's iconset. */
const QString pictureName = QStringLiteral(":/[A-Za-z0-9][^\"'()<>\\r\\n%]*?\\.(?:png|svg|jpe?g|gif|ico)");
} // namespace

/// Images are looked up by name at run time; a wrong name would show as an empty button on the till.
class TestResources final : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        Q_INIT_RESOURCE(resources);
        QVERIFY2(QFileInfo::exists(sourceFolder()), "ZAVEL_SOURCE_DIR names the source tree");
    }

    void everyPictureThatTheProgramNamesIsOnBoard_data()
    {
        const auto row = addColumns<QString>("usedIn");

        const QRegularExpression picture(pictureName);
        QMap<QString, QString> uses;
        QDirIterator sources(sourceFolder(),
                             {QStringLiteral("*.cpp"), QStringLiteral("*.h"), QStringLiteral("*.ui"),
                              QStringLiteral("*.qss"), QStringLiteral("*.css")},
                             QDir::Files, QDirIterator::Subdirectories);
        while (sources.hasNext()) {
            QFile source(sources.next());
            QVERIFY2(source.open(QIODevice::ReadOnly), qPrintable(source.fileName()));
            const QString text = QString::fromUtf8(source.readAll());
            for (auto found = picture.globalMatch(text); found.hasNext();)
                uses.insert(found.next().captured(), source.fileName());
        }

        // These are used by the window and the company logo, where the name is composed or stored in a record.
        for (const char* always : {":/icons/Beverage-Coffee-02.png", ":/images/logo.png", ":/images/brintel-200px.png"})
            uses.insert(QString::fromLatin1(always), QStringLiteral("the program's start"));
        for (auto use = uses.cbegin(); use != uses.cend(); ++use)
            row(qPrintable(use.key()), use.value());
    }
    void everyPictureThatTheProgramNamesIsOnBoard()
    {
        QFETCH(QString, usedIn);
        const QString name = QString::fromUtf8(QTest::currentDataTag());
        QVERIFY2(QFile::exists(name), qPrintable(usedIn + QStringLiteral(" names a picture that does not exist")));
        QVERIFY2(!QImage(name).isNull(), qPrintable(usedIn + QStringLiteral(" names a picture that cannot be read")));
    }

    void everyIconIsCrispOnAScreenOfTwiceTheDensity_data()
    {
        const auto row = addColumns<QString>("name");
        QDirIterator icons(QStringLiteral(":/icons"), QDir::Files, QDirIterator::Subdirectories);
        while (icons.hasNext()) {
            const QString name = icons.next();
            if (!name.contains(QLatin1Char('@')))
                row(qPrintable(name), name);
        }
    }
    void everyIconIsCrispOnAScreenOfTwiceTheDensity()
    {
        QFETCH(QString, name);
        QString dense = name;
        dense.insert(name.lastIndexOf(QLatin1Char('.')), QStringLiteral("@2x"));
        const QImage plain(name);
        QVERIFY(!plain.isNull());
        QCOMPARE(plain.width(), plain.height());
        QCOMPARE(QImage(dense).size(), plain.size() * 2);
    }
};

QTEST_GUILESS_MAIN(TestResources)
#include "tst_resources.moc"
