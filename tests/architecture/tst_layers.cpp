#include <QDir>
#include <QDirIterator>
#include <QRegularExpression>
#include <QTest>

namespace
{
const QStringList layers{"kor", "app", "pos", "zavel", "shell"};

QString sourceRoot() { return qEnvironmentVariable("ZAVEL_SOURCE_DIR") + "/src"; }

QString textOf(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

/** The layer that a folder's list of classes names; the nearest list upwards counts. */
QString layerOf(const QString& folder)
{
    static const QRegularExpression family("add_family\\(\\s*(\\w+)");
    for (QDir dir(folder); dir.path().startsWith(sourceRoot()); dir.cdUp()) {
        const auto match = family.match(textOf(dir.filePath("CMakeLists.txt")));
        if (match.hasMatch())
            return match.captured(1);
    }
    return "shell";
}
} // namespace

/** A layer includes only what lies below it, and includes are rooted, so that a path tells where a class lives. */
class TestLayers : public QObject
{
    Q_OBJECT

private slots:
    void aFolderBelongsToOneLayer()
    {
        static const QRegularExpression family("add_family\\(\\s*(\\w+)");
        QDirIterator lists(sourceRoot(), {"CMakeLists.txt"}, QDir::Files, QDirIterator::Subdirectories);
        int families = 0;
        while (lists.hasNext()) {
            const QString path = lists.next();
            QStringList named;
            auto matches = family.globalMatch(textOf(path));
            while (matches.hasNext())
                named.append(matches.next().captured(1));
            named.removeDuplicates();
            QVERIFY2(named.size() <= 1, qPrintable(path + " names " + named.join(" and ")));
            families += named.size();
        }
        QVERIFY(families > 10);
    }

    void includesPointDownwards_data()
    {
        QTest::addColumn<QString>("path");
        QDirIterator files(sourceRoot(), {"*.h", "*.cpp"}, QDir::Files, QDirIterator::Subdirectories);
        while (files.hasNext()) {
            const QString path = files.next();
            QTest::newRow(qPrintable(path.mid(sourceRoot().size() + 1))) << path;
        }
    }
    void includesPointDownwards()
    {
        QFETCH(QString, path);
        static const QRegularExpression include("^\\s*#include \"([^\"]+)\"", QRegularExpression::MultilineOption);
        const QString own = layerOf(QFileInfo(path).absolutePath());
        QVERIFY2(layers.contains(own), qPrintable("unknown layer " + own));

        auto matches = include.globalMatch(textOf(path));
        while (matches.hasNext()) {
            const QString name = matches.next().captured(1);
            if (name.startsWith("ui_") || name.endsWith(".moc"))
                continue;
            const QFileInfo included(sourceRoot() + '/' + name);
            QVERIFY2(!name.contains("..") && name.contains('/') && included.exists(),
                     qPrintable("not a rooted include: " + name));
            const QString other = layerOf(included.absolutePath());
            QVERIFY2(layers.indexOf(other) <= layers.indexOf(own),
                     qPrintable(name + " is of layer " + other + ", above " + own));
        }
    }

    void onlyTheRootsOfCompositionKnowRegistries_data() { includesPointDownwards_data(); }
    void onlyTheRootsOfCompositionKnowRegistries()
    {
        QFETCH(QString, path);
        const QString folder = path.mid(sourceRoot().size() + 1).section('/', 0, 0);
        if (folder == "registry" || folder == "install" || folder == "shell" || folder == "setup")
            return;
        QVERIFY2(!textOf(path).contains("#include \"registry/") && !textOf(path).contains("#include \"install/"),
                 "a class below the shell reaches for a registry or an installer");
    }
};

QTEST_APPLESS_MAIN(TestLayers)
#include "tst_layers.moc"
