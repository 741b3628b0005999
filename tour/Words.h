#pragma once

#include <QHash>
#include <QList>
#include <QPair>
#include <QRegularExpression>
#include <QString>

/**
 * Translations of the program's texts, so that a tour written in English finds them on the screen in another language.
 */
class Words
{
public:
    /** Reads the translation files of this language; without a code only English is known. */
    Words(const QString& folder, const QString& code);

    [[nodiscard]] bool says(const QString& actual, const QString& expected) const;
    /** True if the text contains the part. */
    [[nodiscard]] bool mentions(const QString& actual, const QString& part) const;

private:
    using Patterns = QList<QRegularExpression>;
    /** Patterns for the expected text on the screen; cached, because searching the translations is slow. */
    [[nodiscard]] const Patterns& translationsOf(const QString& expected, bool part) const;

    /** Texts and their translations, with placeholders for names and numbers. */
    QList<QPair<QString, QString>> m_messages;
    mutable QHash<QPair<QString, bool>, Patterns> m_known;
};
