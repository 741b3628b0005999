#pragma once

#include <QCoreApplication>
#include <QString>

class QWidget;

/**
 * The file that a backup goes to. An earlier backup of that name is moved aside until the new one is complete, and
 * comes back when it is not: what bears the name is a whole backup. Left unsettled, the earlier one comes back too.
 * From its first byte on only the person who makes it may read it: it holds the marks of all passwords.
 */
class BackupFile
{
    Q_DECLARE_TR_FUNCTIONS(BackupFile)

public:
    explicit BackupFile(const QString& path);
    ~BackupFile();
    Q_DISABLE_COPY(BackupFile)

    /** The path as the backup will bear it: with ".bak" where nobody typed an ending. */
    [[nodiscard]] static QString withEnding(const QString& path);
    // What the person chooses in the window; empty where they gave it up.
    [[nodiscard]] static QString askForNew(QWidget* parent, const QString& current, const QString& database);
    [[nodiscard]] static QString askForExisting(QWidget* parent, const QString& current);

    /** Where a run to this file was cut off together with the program: what lies aside since; otherwise empty. */
    [[nodiscard]] static QString wholeOneBeside(const QString& path);

    /** Makes way for the backup, with an empty file in its place; otherwise says why there can be none. */
    [[nodiscard]] bool prepare(QString* reason);
    /** After the program that wrote it: true when the backup stands. Otherwise nothing of it is left. */
    bool settle(bool succeeded);
    /** How that ended, in words for the owner. */
    [[nodiscard]] const QString& verdict() const { return m_verdict; }
    [[nodiscard]] const QString& path() const { return m_path; }

private:
    void putBack();

    QString m_path;
    /** Where the earlier backup lies meanwhile. */
    QString m_aside;
    QString m_verdict;
    bool m_open = false;
};
