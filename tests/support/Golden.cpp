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
    const bool isThere = file.open(QIODevice::ReadOnly);
    const QByteArray expected = file.readAll();
    file.close();
    if (isThere && expected == shown)
        return {};
    if (qEnvironmentVariableIsSet("ZAVEL_UPDATE_GOLDEN")) {
        QDir().mkpath(QFileInfo(path).absolutePath());
        const bool isWritten = file.open(QIODevice::WriteOnly) && file.write(shown) == shown.size();
        return (isWritten ? "written: " : "not written: ") + path;
    }
    if (!isThere)
        return "no golden file " + path + "; the text was:\n" + QString::fromUtf8(shown);
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
