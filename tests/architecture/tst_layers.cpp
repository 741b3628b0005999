#include "support/Rows.h"

#include <QDir>
#include <QDirIterator>
#include <QHash>
#include <QRegularExpression>
#include <QSet>

namespace
{
// The layers, lowest first: each is a folder, a library and the first part of its include paths.
const QStringList floors{"kor", "app", "pos", "zavel", "shell"};

QString sourceRoot() { return qEnvironmentVariable("ZAVEL_SOURCE_DIR") + "/src"; }

QString textOf(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

/** The paths below src of the files with these suffixes. */
QStringList sources(const QStringList& endings)
{
    QStringList paths;
    QDirIterator files(sourceRoot(), endings, QDir::Files, QDirIterator::Subdirectories);
    while (files.hasNext())
        paths.append(files.next().mid(sourceRoot().size() + 1));
    paths.sort();
    return paths;
}

/** The project's own headers that the file includes, without its own .ui and .moc files. */
QStringList includesOf(const QString& path)
{
    static const QRegularExpression include("^\\s*#include \"([^\"]+)\"", QRegularExpression::MultilineOption);
    QStringList names;
    auto matches = include.globalMatch(textOf(sourceRoot() + '/' + path));
    while (matches.hasNext()) {
        const QString name = matches.next().captured(1);
        if (!QFileInfo(name).fileName().startsWith("ui_") && !name.endsWith(".moc"))
            names.append(name);
    }
    return names;
}

QString floorOf(const QString& path) { return path.section('/', 0, 0); }

/** The folder of a file. */
QString folderOf(const QString& path) { return path.section('/', 0, -2); }

/** The room (subfolder of a layer) of a file: "pos/cash" for a file in "pos/cash/ledger". */
QString roomOf(const QString& path) { return folderOf(path).section('/', 0, 1); }

/** Registries and installers create all objects of their layer, so they may include everything in it. */
bool composes(const QString& path)
{
    const QString room = path.section('/', 1, 1);
    return room == "registry" || room == "install";
}

using Arrows = QHash<QString, QSet<QString>>;

/** A cycle of includes through the room; empty if there is none. */
QStringList circleThrough(const QString& room, const Arrows& arrows)
{
    QHash<QString, QString> from;
    QStringList next{room};
    while (!next.isEmpty()) {
        const QString here = next.takeFirst();
        for (const QString& there : arrows.value(here)) {
            if (there == room) {
                QStringList way{room};
                for (QString step = here; step != room; step = from.value(step))
                    way.prepend(step);
                way.prepend(room);
                return way;
            }
            if (!from.contains(there)) {
                from.insert(there, here);
                next.append(there);
            }
        }
    }
    return {};
}
} // namespace

/** A layer includes only lower layers, and the rooms of a layer have no cycles. */
class TestLayers : public QObject
{
    Q_OBJECT

private slots:
    void includesPointDownwards_data()
    {
        const auto row = addColumns<QString>("path");
        for (const QString& path : sources({"*.h", "*.cpp"}))
            row(qPrintable(path), path);
    }
    void includesPointDownwards()
    {
        QFETCH(QString, path);
        const QString own = floorOf(path) == "setup" ? "shell" : floorOf(path);
        QVERIFY2(floors.contains(own), qPrintable("no floor: " + own));
        for (const QString& name : includesOf(path)) {
            QVERIFY2(!name.contains("..") && name.contains('/') && QFileInfo::exists(sourceRoot() + '/' + name),
                     qPrintable("not a rooted include: " + name));
            const QString other = floorOf(name) == "setup" ? "shell" : floorOf(name);
            QVERIFY2(floors.indexOf(other) <= floors.indexOf(own), qPrintable(name + " lies above " + own));
        }
    }

    void noCircleAmongRooms_data() { addRows<bool>("folders", {{"rooms", false}, {"folders", true}}); }
    /** Without cycles, an engineer can read one room with the rooms below it, instead of the whole layer. */
    void noCircleAmongRooms()
    {
        QFETCH(bool, folders);
        const auto place = folders ? folderOf : roomOf;
        Arrows arrows;
        for (const QString& path : sources({"*.h", "*.cpp"})) {
            if (composes(path))
                continue;
            for (const QString& name : includesOf(path)) {
                if (place(name) != place(path))
                    arrows[place(path)].insert(place(name));
            }
        }
        QVERIFY(arrows.size() > floors.size());
        for (auto room = arrows.keyBegin(); room != arrows.keyEnd(); ++room) {
            const QStringList circle = circleThrough(*room, arrows);
            QVERIFY2(circle.isEmpty(), qPrintable("a circle: " + circle.join(" -> ")));
        }
    }

    void onlyTheRootsOfCompositionKnowRegistries_data() { includesPointDownwards_data(); }
    void onlyTheRootsOfCompositionKnowRegistries()
    {
        QFETCH(QString, path);
        if (composes(path) || floorOf(path) == "shell" || floorOf(path) == "setup")
            return;
        for (const QString& name : includesOf(path))
            QVERIFY2(!composes(name) || floorOf(name) == "kor",
                     qPrintable(name + ": a class below the shell reaches for a registry or an installer"));
    }

    void aFormLiesBesideItsClass_data()
    {
        const auto row = addColumns<QString>("path");
        for (const QString& path : sources({"*.ui"}))
            row(qPrintable(path), path);
    }
    void aFormLiesBesideItsClass()
    {
        QFETCH(QString, path);
        const QString form = "\"ui_" + QFileInfo(path).completeBaseName() + ".h\"";
        QDir folder(sourceRoot() + '/' + folderOf(path));
        bool used = false;
        for (const QString& name : folder.entryList({"*.h", "*.cpp"}, QDir::Files))
            used = used || textOf(folder.filePath(name)).contains(form);
        QVERIFY2(used, "no class in the form's folder uses it");
    }
};

QTEST_APPLESS_MAIN(TestLayers)
#include "tst_layers.moc"
