#include "support/Rows.h"

#include <QFile>
#include <QKeySequence>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QXmlStreamReader>

namespace
{
struct Message
{
    QString context;
    QString source;
    QString translation;
    bool finished = true;
};

QString sourceFolder() { return qEnvironmentVariable("ZAVEL_SOURCE_DIR"); }
QString catalogue(const QString& name) { return sourceFolder() + "/languages/" + name; }

/** Translation files write a carriage return as a separate XML element. */
QString readText(QXmlStreamReader& xml)
{
    QString text;
    while (!xml.atEnd() && xml.readNext() != QXmlStreamReader::EndElement) {
        if (xml.isCharacters()) {
            text += xml.text();
        } else if (xml.name() == QLatin1String("byte")) {
            text += QChar(xml.attributes().value("value").mid(1).toInt(nullptr, 16));
            xml.skipCurrentElement();
        } else if (xml.isStartElement()) {
            text += readText(xml);
        }
    }
    return text;
}

QVector<Message> readCatalogue(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return {};
    QVector<Message> messages;
    QString context;
    QXmlStreamReader xml(&file);
    while (!xml.atEnd()) {
        if (xml.readNext() != QXmlStreamReader::StartElement)
            continue;
        if (xml.name() == QLatin1String("name")) {
            context = readText(xml);
        } else if (xml.name() == QLatin1String("message")) {
            messages.append({context, {}, {}});
        } else if (xml.name() == QLatin1String("source")) {
            messages.last().source = readText(xml);
        } else if (xml.name() == QLatin1String("translation")) {
            messages.last().finished = !xml.attributes().hasAttribute("type");
            messages.last().translation = readText(xml);
        }
    }
    return messages;
}

QStringList found(const QString& text, const char* pattern)
{
    QStringList parts;
    const QRegularExpression expression(QString::fromLatin1(pattern));
    for (auto match = expression.globalMatch(text); match.hasNext();)
        parts += match.next().captured();
    parts.sort();
    return parts;
}

bool isShortcut(const QString& text)
{
    static const QRegularExpression shortcut("^((Alt|Ctrl|Shift)\\+\\S+|F\\d+|Del|Esc|Ins)$");
    return shortcut.match(text).hasMatch();
}

/** The parts that a translation must keep: placeholders, keys, and texts that forms depend on. */
QStringList kept(const QString& text)
{
    return QStringList{isShortcut(text) ? "shortcut " + text : QString(),
                       QKeySequence::mnemonic(text).isEmpty() ? "no marked letter" : "a marked letter",
                       found(text, "^\\s+|\\s+$").join('|'), QString::number(text.count('\n'))} +
           found(text, "%[0-9Ln]+") + found(text, "\\[F\\d+\\]|\\((F\\d+|Del|Esc|Ctrl\\+\\w)\\)|\\*\\.\\w+");
}
} // namespace

/// Finds texts without a translation, and translations that lost a placeholder.
class TestCatalogues final : public QObject
{
    Q_OBJECT

private slots:
    void everyTextOfTheSourcesIsInTheCatalogues_data()
    {
        const auto row = addColumns<QString, QStringList, int>("name", "options", "least");
        row("Indonesian", "TranslationExample_id.ts", {}, 1000);
        // The source texts are English; only the plural forms need a translation.
        row("English", "TranslationExample_en.ts", {"-pluralonly"}, 0);
    }
    void everyTextOfTheSourcesIsInTheCatalogues()
    {
        QFETCH(QString, name);
        QFETCH(QStringList, options);
        QFETCH(int, least);
        const QTemporaryDir folder;
        const QString copy = folder.filePath(name);
        QVERIFY(QFile::copy(catalogue(name), copy));
        QProcess lupdate;
        lupdate.setWorkingDirectory(sourceFolder());
        lupdate.start(LUPDATE, options + QString(TEXT_SOURCES).split(' ') +
                                   QStringList{"-locations", "none", "-no-obsolete", "-ts", copy});
        QVERIFY2(lupdate.waitForFinished(60000), qPrintable(lupdate.errorString()));
        QCOMPARE(lupdate.exitCode(), 0);

        // Its warnings mean that it would file texts under another context than the program uses.
        const QStringList complaints =
            found(QString::fromLocal8Bit(lupdate.readAllStandardError()), "[^\n]*/src/[^\n]*|"
                                                                          "[^\n]*/plugins/[^\n]*");
        QCOMPARE(complaints, QStringList());
        const auto texts = [](const QString& path) {
            QStringList list;
            const QVector<Message> messages = readCatalogue(path);
            for (const Message& message : messages)
                list += message.context + " | " + message.source;
            list.sort();
            return list;
        };
        const QStringList wanted = texts(copy);
        const QStringList actual = texts(catalogue(name));
        QVERIFY(wanted.size() >= least);
        for (const QString& text : wanted)
            QVERIFY2(actual.contains(text), qPrintable("missing, build the target update_languages: " + text));
        QCOMPARE(actual, wanted);
    }

    void everyTextIsTranslated_data()
    {
        addRows<QString>("name", {{"the program's", "TranslationExample_id.ts"}, {"the toolkit's", "qt_id.ts"}});
    }
    void everyTextIsTranslated()
    {
        QFETCH(QString, name);
        const QVector<Message> messages = readCatalogue(catalogue(name));
        QVERIFY(messages.size() > 300);
        QStringList missing;
        for (const Message& message : messages) {
            if (!message.finished || message.translation.isEmpty())
                missing += message.context + " | " + message.source;
        }
        QCOMPARE(missing, QStringList());
    }

    void aTranslationKeepsPlacesKeysAndBlanks_data() { everyTextIsTranslated_data(); }
    void aTranslationKeepsPlacesKeysAndBlanks()
    {
        QFETCH(QString, name);
        QStringList broken;
        const QVector<Message> messages = readCatalogue(catalogue(name));
        for (const Message& message : messages) {
            if (kept(message.source) != kept(message.translation))
                broken += message.context + " | " + message.source + " | " + message.translation;
        }
        QCOMPARE(broken, QStringList());
    }
};

QTEST_MAIN(TestCatalogues)
#include "tst_catalogues.moc"
