#pragma once

#include <QCoreApplication>
#include <QString>

class QWidget;

/**
 * The target file of a backup. prepare() renames an earlier backup of this name; settle() deletes it after success and
 * renames it back after failure, as does the destructor if settle() was not called. So afterwards a file of this name
 * is a complete backup. Only its owner may read it: it contains password hashes.
 */
class BackupFile
{
    Q_DECLARE_TR_FUNCTIONS(BackupFile)

public:
    explicit BackupFile(const QString& path);
    ~BackupFile();
    Q_DISABLE_COPY(BackupFile)

    /** The path of the backup: adds ".bak" if it has no suffix. */
    [[nodiscard]] static QString withEnding(const QString& path);
    // The file chosen in a file dialog; empty if cancelled.
    [[nodiscard]] static QString askForNew(QWidget* parent, const QString& current, const QString& database);
    [[nodiscard]] static QString askForExisting(QWidget* parent, const QString& current);

    /** The renamed earlier backup, if the program ended during a backup to this file; otherwise empty. */
    [[nodiscard]] static QString wholeOneBeside(const QString& path);

    /** Renames an earlier backup and creates an empty file. On failure returns false and the reason. */
    [[nodiscard]] bool prepare(QString* reason);
    /** Call it after the backup program. True if the backup is complete; otherwise the new file is deleted. */
    bool settle(bool succeeded);
    /** The result as a message for the owner. */
    [[nodiscard]] const QString& verdict() const { return m_verdict; }
    [[nodiscard]] const QString& path() const { return m_path; }

private:
    void putBack();

    QString m_path;
    /** The path of the renamed earlier backup. */
    QString m_aside;
    QString m_verdict;
    bool m_open = false;
};
