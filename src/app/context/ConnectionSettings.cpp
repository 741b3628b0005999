#include "app/context/ConnectionSettings.h"

#include "app/context/AppContext.h"
#include "kor/system/KorSimpleEncrypt.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSettings>
#include <QStandardPaths>
#include <QSysInfo>

namespace
{
QString orDefault(const QString& value, const char* defaultValue)
{
    return value.isEmpty() ? QString::fromLatin1(defaultValue) : value;
}
} // namespace

QString ConnectionSettings::defaultPath()
{
    return QDir(QStandardPaths::writableLocation(QStandardPaths::DataLocation)).filePath("settings.ini");
}

bool ConnectionSettings::exists(const QString& path)
{
    QFileInfo file(path);
    file.setCaching(false);
    return file.isFile();
}

ConnectionSettings ConnectionSettings::read(const QString& path)
{
    QSettings file(path, QSettings::IniFormat);
    // Another program may have changed the file since this one last read it.
    file.sync();
    const auto deciphered = [&file](const char* key) {
        return KorSimpleEncrypt::decrypt(file.value(QLatin1String(key)).toString());
    };
    ConnectionSettings settings;
    settings.host = deciphered("dbhost");
    settings.database = deciphered("dbname");
    settings.user = deciphered("dbuser");
    settings.password = deciphered("dbpassword");
    settings.port = file.value("dbport").toInt();
    settings.showSidebar = file.value("showsidebar", true).toBool();
    settings.showDashboard = file.value("showdashboard", true).toBool();
    return settings;
}

bool ConnectionSettings::write(const QString& path) const
{
    QSettings file(path, QSettings::IniFormat);
    file.setValue("dbhost", KorSimpleEncrypt::encrypt(host));
    file.setValue("dbname", KorSimpleEncrypt::encrypt(database));
    file.setValue("dbuser", KorSimpleEncrypt::encrypt(user));
    file.setValue("dbpassword", KorSimpleEncrypt::encrypt(password));
    file.setValue("dbport", port);
    file.setValue("showsidebar", showSidebar);
    file.setValue("showdashboard", showDashboard);
    file.sync();
    return file.status() == QSettings::NoError && exists(path) &&
           QFile::setPermissions(path, QFile::ReadOwner | QFile::WriteOwner);
}

ConnectionSettings ConnectionSettings::withDefaults() const
{
    ConnectionSettings settings = *this;
    settings.host = orDefault(host, "localhost");
    settings.database = orDefault(database, "ZavelPOS");
    settings.user = orDefault(user, "postgres");
    settings.password = orDefault(password, "Qx7!Rm2z");
    if (settings.port == 0)
        settings.port = 6666;
    return settings;
}

QString ConnectionSettings::workstation()
{
    const QString name = QSettings(defaultPath(), QSettings::IniFormat).value("workstation").toString().trimmed();
    return name.isEmpty() ? QSysInfo::machineHostName() : name;
}

void ConnectionSettings::putIntoContext() const
{
    AppContext* context = AppContext::instance();
    context->setDbHost(host);
    context->setDbPort(QString::number(port));
    context->setDbName(database);
    context->setDbUser(user);
    context->setDbPassword(password);
}
