#pragma once

#include <QHash>
#include <QList>
#include <QPair>
#include <QRegularExpression>
#include <QString>

/** What the program's words are in another language, so that a tour written in English knows them on the screen. */
class Words
{
public:
    /** Reads the catalogues of this language; without one only English is known. */
    Words(const QString& folder, const QString& code);

    [[nodiscard]] bool says(const QString& actual, const QString& expected) const;
    /** Somewhere in the text. */
    [[nodiscard]] bool mentions(const QString& actual, const QString& part) const;

private:
    using Patterns = QList<QRegularExpression>;
    /** What the expected text may be on the screen; looked for once, for the catalogues are long. */
    [[nodiscard]] const Patterns& translationsOf(const QString& expected, bool part) const;

    /** A text and its translation, with places for names and numbers in them. */
    QList<QPair<QString, QString>> m_messages;
    mutable QHash<QPair<QString, bool>, Patterns> m_known;
};
