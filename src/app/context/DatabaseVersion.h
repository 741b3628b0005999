#pragma once

#include <QCoreApplication>
#include <QString>

/**
 * The version of the tables that a database holds, beside the one that the program works with. Each is a number: 1.10
 * would be 1.1.
 */
class DatabaseVersion
{
    Q_DECLARE_TR_FUNCTIONS(DatabaseVersion)

public:
    /** What the build says, see project() in the first CMakeLists.txt: the one place that names the number. */
    [[nodiscard]] static double ofProgram();
    /** The same as people read it, and as the database holds it. */
    [[nodiscard]] static QString ofProgramText();
    /** The key of the row of settings that holds the database's. */
    [[nodiscard]] static QString key() { return QStringLiteral("app_version"); }

    /** Reads the open database's. It asks for nothing that a later version may add. */
    [[nodiscard]] static DatabaseVersion read();
    /** An empty text is that of a database which tells no version. */
    explicit DatabaseVersion(const QString& text) : m_text(text), m_known(!text.isEmpty()) {}

    /** False where nothing is installed, or an installation was cut short. */
    [[nodiscard]] bool isKnown() const { return m_known; }
    [[nodiscard]] const QString& text() const { return m_text; }
    /** 0 for a text that is no number. */
    [[nodiscard]] double number() const { return m_text.toDouble(); }
    /** An update is due: the database is known to be of a lower version. */
    [[nodiscard]] bool isOlderThan(double version) const { return m_known && number() < version; }
    /** A later program has changed the tables: this one must leave them alone. */
    [[nodiscard]] bool isNewerThan(double version) const { return number() > version; }
    /** What to tell of a newer database, and what to do about it. */
    [[nodiscard]] QString tooNew() const;

private:
    QString m_text;
    bool m_known;
};
