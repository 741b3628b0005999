#include "tour/Words.h"

#include <QFile>
#include <QXmlStreamReader>

#include <algorithm>

namespace
{
/** A pattern for the text that matches anything for its placeholders. */
QString patternOf(const QString& text)
{
    QString pattern = QRegularExpression::escape(text.trimmed());
    return pattern.replace(QRegularExpression("\\\\%\\d"), "(.*)");
}

bool matches(const QString& text, const QString& pattern)
{
    return QRegularExpression(QRegularExpression::anchoredPattern(pattern),
                              QRegularExpression::DotMatchesEverythingOption)
        .match(text.trimmed())
        .hasMatch();
}
} // namespace

Words::Words(const QString& folder, const QString& code)
{
    for (const char* catalogue : {"TranslationExample", "qt"}) {
        QFile file(QString("%1/%2_%3.ts").arg(folder, catalogue, code));
        if (code.isEmpty() || !file.open(QIODevice::ReadOnly))
            continue;
        QXmlStreamReader xml(&file);
        QString source;
        while (!xml.atEnd()) {
            if (!xml.readNextStartElement() && xml.tokenType() != QXmlStreamReader::StartElement)
                continue;
            const bool isSource = xml.name() == QLatin1String("source");
            if (!isSource && xml.name() != QLatin1String("translation"))
                continue;
            const QString text = xml.readElementText(QXmlStreamReader::SkipChildElements).remove('&');
            if (isSource)
                source = text;
            else if (!text.trimmed().isEmpty())
                m_messages.append({source, text});
        }
    }
}

const Words::Patterns& Words::translationsOf(const QString& expected, bool part) const
{
    const auto known = m_known.constFind({expected, part});
    if (known != m_known.constEnd())
        return *known;
    Patterns patterns;
    for (const auto& message : m_messages) {
        const bool plain = !message.first.contains('%');
        if (plain ? message.first.trimmed() == expected.trimmed() : matches(expected, patternOf(message.first)))
            patterns.append(QRegularExpression(patternOf(message.second)));
        else if (part && message.first.contains(expected))
            patterns.append(QRegularExpression(patternOf(message.second)));
        // A caption followed by a value.
        else if (message.first.endsWith(':') && expected.startsWith(message.first))
            patterns.append(QRegularExpression(patternOf(message.second + expected.mid(message.first.size()))));
    }
    return *m_known.insert({expected, part}, patterns);
}

bool Words::says(const QString& actual, const QString& expected) const
{
    const Patterns& patterns = translationsOf(expected, false);
    return actual == expected || std::any_of(patterns.begin(), patterns.end(), [&](const QRegularExpression& pattern) {
               return matches(actual, pattern.pattern());
           });
}

bool Words::mentions(const QString& actual, const QString& part) const
{
    const Patterns& patterns = translationsOf(part, true);
    return actual.contains(part) ||
           std::any_of(patterns.begin(), patterns.end(),
                       [&](const QRegularExpression& pattern) { return actual.contains(pattern); });
}
