#include "shell/database/tools/ConnectionEdits.h"

#include <QLineEdit>

void ConnectionEdits::show(const ConnectionSettings& settings) const
{
    host->setText(settings.host);
    database->setText(settings.database);
    user->setText(settings.user);
    password->setText(settings.password);
    port->setText(QString::number(settings.port));
}

ConnectionSettings ConnectionEdits::read(ConnectionSettings settings) const
{
    settings.host = host->text();
    settings.database = database->text();
    settings.user = user->text();
    settings.password = password->text();
    settings.port = port->text().toInt();
    return settings;
}
