#include "support/Golden.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

QByteArray visible(const QByteArray& bytes)
{
    QByteArray result;
    for (const char c : bytes) {
        const auto byte = static_cast<unsigned char>(c);
        if (byte == '\n' || byte >= 0x80 || (byte >= 0x20 && byte != 0x7f))
            result += c;
        else
            result += '<' + QByteArray::number(byte, 16).rightJustified(2, '0').toUpper() + '>';
    }
    return result;
}

QString goldenDifference(const QString& name, const QByteArray& actual)
{
    const QString path = QString(ZAVEL_SOURCE_DIR) + "/tests/golden/files/" + name;
    const QByteArray shown = visible(actual);
    QFile file(path);
    if (qEnvironmentVariableIsSet("ZAVEL_UPDATE_GOLDEN")) {
        QDir().mkpath(QFileInfo(path).absolutePath());
        if (file.open(QIODevice::WriteOnly))
            file.write(shown);
        return "written: " + path;
    }
    if (!file.open(QIODevice::ReadOnly))
        return "no golden file " + path + "; the text was:\n" + QString::fromUtf8(shown);
    const QByteArray expected = file.readAll();
    if (expected == shown)
        return {};
    const QList<QByteArray> wanted = expected.split('\n');
    const QList<QByteArray> got = shown.split('\n');
    for (int i = 0; i < std::max(wanted.size(), got.size()); ++i) {
        if (wanted.value(i, "<no line>") != got.value(i, "<no line>"))
            return QString("%1, line %2:\n  expected |%3|\n  actual   |%4|\n")
                .arg(name)
                .arg(i + 1)
                .arg(QString::fromUtf8(wanted.value(i, "<no line>")), QString::fromUtf8(got.value(i, "<no line>")));
    }
    return "they differ in their ends";
}
