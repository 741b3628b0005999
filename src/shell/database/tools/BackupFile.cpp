#include "shell/database/tools/BackupFile.h"

#include "app/context/EntityPool.h"
#include "kor/business/KorErrorScope.h"
#include "kor/business/KorServiceDirectory.h"
#include "kor/persistence/KorDatabase.h"
#include "pos/masterdata/company/BusinessDataPerusahaan.h"
#include "pos/masterdata/company/EntityDataPerusahaan.h"

#include <QDate>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QLocale>

namespace
{
QString startFolder(const QString& current)
{
    const QFileInfo file(current);
    return !current.isEmpty() && file.dir().exists() ? file.absolutePath() : QDir::homePath();
}

QString asideOf(const QString& path) { return QFileInfo(path).absoluteFilePath() + ".previous"; }

/** The restaurant's name; empty if this is not the program's open database. */
QString shopOf(const QString& database)
{
    auto* companies = service<BusinessDataPerusahaan>("Company Profile");
    const QSqlDatabase own = KorDatabase::current();
    if (!companies || !own.isOpen() || own.databaseName() != database)
        return {};
    EntityPool read;
    const EntityPoolScope scope(read);
    // If this fails, the file is named after the database.
    const KorErrorScope errors(companies);
    const EntityDataPerusahaan* company = companies->getData();
    return company ? company->getNamaPerusahaan() : QString();
}

/** Replaces characters that file systems or command lines may not accept. */
QString safeName(const QString& name)
{
    constexpr int longest = 60;
    QString safe;
    for (const QChar letter : name) {
        if (letter.isLetterOrNumber() || letter == '-')
            safe.append(letter);
        else if (!safe.isEmpty() && !safe.endsWith('_'))
            safe.append('_');
    }
    safe.truncate(longest);
    while (safe.endsWith('_'))
        safe.chop(1);
    return safe;
}

QString suggestion(const QString& database)
{
    const QString shop = safeName(shopOf(database));
    return (shop.isEmpty() ? safeName(database) : shop) + QDate::currentDate().toString("-yyyy-MM-dd") + ".bak";
}
} // namespace

BackupFile::BackupFile(const QString& path) : m_path(QFileInfo(path).absoluteFilePath()), m_aside(asideOf(path)) {}

BackupFile::~BackupFile()
{
    if (m_open)
        putBack();
}

QString BackupFile::withEnding(const QString& path)
{
    const QFileInfo file(path);
    return path.isEmpty() || path.endsWith('/') || file.isDir() || !file.suffix().isEmpty() ? path : path + ".bak";
}

QString BackupFile::askForNew(QWidget* parent, const QString& current, const QString& database)
{
    QFileDialog dialog(parent, tr("Save File"), startFolder(current), tr("Backup File (*.bak)"));
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setDefaultSuffix("bak");
    dialog.selectFile(current.isEmpty() ? suggestion(database) : QFileInfo(current).fileName());
    return dialog.exec() == QDialog::Accepted ? dialog.selectedFiles().value(0) : QString();
}

QString BackupFile::askForExisting(QWidget* parent, const QString& current)
{
    return QFileDialog::getOpenFileName(parent, tr("Open File"), startFolder(current), tr("Backup File (*.bak)"));
}

QString BackupFile::wholeOneBeside(const QString& path)
{
    const QString aside = asideOf(path);
    return QFileInfo::exists(aside) ? aside : QString();
}

bool BackupFile::prepare(QString* reason)
{
    const QFileInfo file(m_path);
    if (!file.dir().exists()) {
        *reason = tr("There is no folder %1. Please choose another one for the backup.").arg(file.absolutePath());
        return false;
    }
    if (file.exists() && !file.isFile()) {
        *reason = tr("%1 is no file. Please enter the name of a file for the backup.").arg(m_path);
        return false;
    }
    // If a renamed backup exists, it is the last complete one: the run after it was interrupted and left a partial
    // file.
    const bool earlier = QFileInfo::exists(m_aside) || !file.exists() || QFile::rename(m_path, m_aside);
    QFile place(m_path);
    m_open = earlier && place.open(QIODevice::WriteOnly);
    // An overwritten partial file may be readable by all. Errors are ignored: some file systems have no owners.
    if (m_open)
        place.setPermissions(QFile::ReadOwner | QFile::WriteOwner);
    if (m_open)
        return true;
    *reason = tr("The backup can not be written to the folder %1: %2. Please choose another one.")
                  .arg(file.absolutePath(), place.errorString());
    if (earlier)
        putBack();
    return false;
}

bool BackupFile::settle(bool succeeded)
{
    const qint64 size = QFileInfo(m_path).size();
    const bool stands = m_open && succeeded && size > 0;
    if (stands) {
        m_open = false;
        QFile::remove(m_aside);
        m_verdict = tr("The backup is complete: %1, %2.").arg(m_path, QLocale().formattedDataSize(size));
        return true;
    }
    const bool earlier = QFileInfo::exists(m_aside);
    putBack();
    m_verdict = tr("The backup failed, the reason stands above. No new backup was written.");
    if (QFileInfo::exists(m_aside))
        m_verdict += ' ' + tr("The earlier one lies in %1.").arg(m_aside);
    else if (earlier)
        m_verdict += ' ' + tr("The earlier one in %1 is as it was.").arg(m_path);
    return false;
}

void BackupFile::putBack()
{
    m_open = false;
    QFile::remove(m_path);
    if (QFileInfo::exists(m_aside))
        QFile::rename(m_aside, m_path);
}
