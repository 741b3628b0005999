#pragma once

#include "app/context/ConnectionSettings.h"

#include <QCoreApplication>
#include <QStringList>

/** What the person at the console asked for. */
struct SetupOptions
{
    Q_DECLARE_TR_FUNCTIONS(SetupOptions)

public:
    enum Command { Install, Update, Status, Help, Mistake };

    Command command = Mistake;
    ConnectionSettings connection;
    bool createDatabase = false;
    bool replace = false;
    QString adminName;
    QString adminPassword;
    QString locale;
    QString dateFormat;
    bool writeSettings = false;
    QString settingsPath;
    /** The help, or what is wrong with the arguments. */
    QString text;

    /** Reads the arguments, the program's name first. Passwords come from the environment where they are not given. */
    [[nodiscard]] static SetupOptions parse(const QStringList& arguments);
};
