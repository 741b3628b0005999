#include "shell/database/wizard/WizardConnection.h"

#include "app/context/AppContext.h"
#include "app/context/ConnectionSettings.h"
#include "app/context/DatabaseManager.h"

#include <QApplication>
#include <QDir>
#include <QFileInfo>
#include <QMessageBox>

QString WizardConnection::settingsPath()
{
    QString path = ConnectionSettings::defaultPath();
    QDir().mkpath(QFileInfo(path).path());
    return path;
}

bool WizardConnection::open(QWidget* parent, const ConnectionSettings& connection)
{
    DatabaseManager* manager = AppContext::instance()->databaseManager();
    QApplication::setOverrideCursor(Qt::WaitCursor);
    manager->close();
    const bool opened =
        manager->open(connection.host, connection.database, connection.user, connection.password, connection.port);
    QApplication::restoreOverrideCursor();
    if (opened)
        return true;
    QMessageBox box(QMessageBox::Critical, tr("Error"),
                    tr("Can not connect to the database, please update your database connection details"),
                    QMessageBox::Ok, parent);
    box.setInformativeText(manager->lastErrorText().trimmed());
    box.exec();
    return false;
}

bool WizardConnection::save(QWidget* parent, const ConnectionSettings& connection, const QString& path)
{
    if (connection.write(path))
        return true;
    QMessageBox::critical(parent, tr("Error"), tr("Can't write the settings file: %1").arg(path));
    return false;
}
