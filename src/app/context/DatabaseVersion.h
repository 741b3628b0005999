#pragma once

#include <QCoreApplication>
#include <QString>

/**
 * The version of the tables in a database, and the version that the program needs. A version is a number: 1.10 equals
 * 1.1.
 */
class DatabaseVersion
{
    Q_DECLARE_TR_FUNCTIONS(DatabaseVersion)

public:
    /** Set in project() of the top CMakeLists.txt, the only place that has this number. */
    [[nodiscard]] static double ofProgram();
    /** The same as text, as it is shown and stored. */
    [[nodiscard]] static QString ofProgramText();
    /** The key of the settings row that has the database's version. */
    [[nodiscard]] static QString key() { return QStringLiteral("app_version"); }

    /** Reads the version of the open database. It uses only tables and columns that every version has. */
    [[nodiscard]] static DatabaseVersion read();
    /** An empty text means that the version is unknown. */
    explicit DatabaseVersion(const QString& text) : m_text(text), m_known(!text.isEmpty()) {}

    /** False if nothing is installed or an installation was cut short. */
    [[nodiscard]] bool isKnown() const { return m_known; }
    [[nodiscard]] const QString& text() const { return m_text; }
    /** 0 if the text is no number. */
    [[nodiscard]] double number() const { return m_text.toDouble(); }
    /** True if an update is needed: the version is known and lower. */
    [[nodiscard]] bool isOlderThan(double version) const { return m_known && number() < version; }
    /** True if a newer program has changed the tables: this program must not change them. */
    [[nodiscard]] bool isNewerThan(double version) const { return number() > version; }
    /** The message for a newer database, with advice. */
    [[nodiscard]] QString tooNew() const;

private:
    QString m_text;
    bool m_known;
};
