#pragma once

#include "app/context/ConnectionSettings.h"

#include <QCoreApplication>
#include <QStringList>

/** The parsed command line. */
struct SetupOptions
{
    Q_DECLARE_TR_FUNCTIONS(SetupOptions)

public:
    enum Command { Install, Update, Status, SampleTrade, Help, Mistake };

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
    // Of the sample trade.
    int months = 12;
    int perDay = 100;
    int seed = 1;
    /** The help text, or an error about the arguments. */
    QString text;

    /** Parses the arguments (the first is the program's name). Passwords not given are read from the environment. */
    [[nodiscard]] static SetupOptions parse(const QStringList& arguments);
};
