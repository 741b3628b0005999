#include "shell/database/wizard/WizardConnection.h"

#include "app/context/AppContext.h"
#include "app/context/ConnectionSettings.h"
#include "app/context/DatabaseManager.h"
#include "app/context/DatabaseServer.h"
#include "shell/database/check/RestoreQuestion.h"
#include "shell/database/tools/ConnectionEdits.h"
#include "shell/database/wizard/LocalServers.h"

#include <QApplication>
#include <QDir>
#include <QFileInfo>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QSqlQuery>

namespace
{
class WaitCursor
{
public:
    WaitCursor() { QApplication::setOverrideCursor(Qt::WaitCursor); }
    ~WaitCursor() { QApplication::restoreOverrideCursor(); }
    Q_DISABLE_COPY(WaitCursor)
};
} // namespace

QString WizardConnection::settingsPath()
{
    QString path = ConnectionSettings::defaultPath();
    QDir().mkpath(QFileInfo(path).path());
    return path;
}

bool WizardConnection::tryOpen(const ConnectionSettings& connection)
{
    DatabaseManager* manager = AppContext::instance()->databaseManager();
    const WaitCursor cursor;
    manager->close();
    return manager->open(connection.host, connection.database, connection.user, connection.password, connection.port);
}

int WizardConnection::countTables()
{
    QSqlQuery query(RestoreQuestion::countingTables(), AppContext::instance()->databaseManager()->database());
    return query.next() ? query.value(0).toInt() : 0;
}

bool WizardConnection::open(QWidget* parent, const ConnectionSettings& connection)
{
    if (tryOpen(connection))
        return true;
    QMessageBox box(QMessageBox::Critical, tr("Error"), noConnection(), QMessageBox::Ok, parent);
    box.setInformativeText(AppContext::instance()->databaseManager()->lastErrorText().trimmed());
    box.exec();
    return false;
}

bool WizardConnection::openOrHelp(QWidget* parent, const ConnectionEdits& edits)
{
    for (;;) {
        const ConnectionSettings connection = edits.read();
        if (tryOpen(connection))
            return true;
        QMessageBox box(QMessageBox::Critical, tr("Error"), noConnection(), QMessageBox::Ok, parent);
        QString words = AppContext::instance()->databaseManager()->lastErrorText().trimmed();
        const Help help = helpFor(connection);
        if (help.port > 0) {
            words += "\n\n" + listensOn(help.port);
            box.addButton(QMessageBox::Retry)->setText(tr("&Use Port %1").arg(help.port));
        } else if (help.isMissing) {
            words += "\n\n" + tr("The server has no database %1 yet.").arg(connection.database);
            box.addButton(QMessageBox::Yes)->setText(tr("&Create Database"));
        }
        box.setInformativeText(words);
        box.setDefaultButton(QMessageBox::Ok);
        box.setEscapeButton(QMessageBox::Ok);
        const int answer = box.exec();
        if (answer == QMessageBox::Ok)
            return false;
        if (answer == QMessageBox::Retry)
            edits.port->setText(QString::number(help.port));
        else if (!create(parent, connection))
            return false;
    }
}

QString WizardConnection::listensOn(int port) { return tr("PostgreSQL listens on port %1 here.").arg(port); }

QString WizardConnection::noConnection()
{
    return tr("Can not connect to the database, please update your database connection details");
}

WizardConnection::Help WizardConnection::helpFor(const ConnectionSettings& connection)
{
    const WaitCursor cursor;
    if (const int port = LocalServers().portInPlaceOf(connection))
        return {port, false};
    const DatabaseServer server(AppContext::instance()->databaseManager(), connection);
    return {0, server.isOpen() && !server.has(connection.database)};
}

bool WizardConnection::create(QWidget* parent, const ConnectionSettings& connection)
{
    DatabaseServer server(AppContext::instance()->databaseManager(), connection);
    if (server.create(connection.database))
        return true;
    QMessageBox::critical(parent, tr("Error"),
                          tr("The database %1 was not created: %2").arg(connection.database, server.failure()));
    return false;
}

bool WizardConnection::save(QWidget* parent, const ConnectionSettings& connection, const QString& path)
{
    if (connection.write(path))
        return true;
    QMessageBox::critical(parent, tr("Error"), tr("Can't write the settings file: %1").arg(path));
    return false;
}
