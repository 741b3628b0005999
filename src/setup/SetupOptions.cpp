#include "setup/SetupOptions.h"

#include <QCommandLineParser>
#include <QDir>
#include <QLocale>
#include <QStandardPaths>

#include <optional>

namespace
{
void declare(QCommandLineParser& parser)
{
    parser.setApplicationDescription(SetupOptions::tr(
        "Makes or updates the database of Zavel POS.\n"
        "The database password is taken from ZAVEL_DB_PASSWORD, the administrator's from ZAVEL_ADMIN_PASSWORD.\n"
        "Exit status of install, update and sample-trade: 0 when every step was done, 1 otherwise, 2 for wrong "
        "arguments.\n"
        "Exit status of status: 0 installed, 3 reachable but not installed, 4 installed and of a newer version "
        "than this program, 1 otherwise."));
    parser.addPositionalArgument("command", SetupOptions::tr("install, update, status or sample-trade"));
    parser.addOptions({
        {{"h", "help"}, SetupOptions::tr("Show this text.")},
        {"host", SetupOptions::tr("The database server (localhost)."), "host"},
        {"port", SetupOptions::tr("Its port (6666)."), "port"},
        {"user", SetupOptions::tr("The database user (postgres)."), "name"},
        {"database", SetupOptions::tr("The database (ZavelPOS)."), "name"},
        {"create-database", SetupOptions::tr("install: create the database where there is none.")},
        {"replace", SetupOptions::tr("install: make the tables anew where there are some. What they hold is lost.")},
        {"admin-name", SetupOptions::tr("install: the administrator's user name (admin)."), "name"},
        {"admin-password", SetupOptions::tr("install: the administrator's password; better in the environment."),
         "password"},
        {"locale", SetupOptions::tr("install: how numbers and money are written, en_US or id_ID (en_US)."), "locale"},
        {"date-format", SetupOptions::tr("install: how dates are shown (d MMM yyyy)."), "format"},
        {"write-settings", SetupOptions::tr("install: let the program on this workstation use the database.")},
        {"settings", SetupOptions::tr("The settings file to write (the program's own)."), "file"},
        {"years", SetupOptions::tr("sample-trade: how many years up to yesterday (1)."), "number"},
        {"months", SetupOptions::tr("sample-trade: how many months, on top of the years."), "number"},
        {"per-day", SetupOptions::tr("sample-trade: sales a day, on the average (100)."), "number"},
        {"seed", SetupOptions::tr("sample-trade: another number makes other sales (1)."), "number"},
    });
}

/** The settings file of the program, whose data folder is "zavelpos". */
QString programSettingsPath()
{
    return QDir(QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation))
        .filePath("zavelpos/settings.ini");
}

SetupOptions::Command commandOf(const QString& word)
{
    if (word == "install")
        return SetupOptions::Install;
    if (word == "update")
        return SetupOptions::Update;
    if (word == "sample-trade")
        return SetupOptions::SampleTrade;
    return word == "status" ? SetupOptions::Status : SetupOptions::Mistake;
}

SetupOptions mistake(const QString& text)
{
    SetupOptions options;
    options.text = text;
    return options;
}

/** The option's number, and what it is when not given; nothing when it is none, or out of bounds. */
std::optional<int> numberOf(const QCommandLineParser& parser, const QString& name, int unsaid, int most)
{
    if (!parser.isSet(name))
        return unsaid;
    bool isNumber = false;
    const int number = parser.value(name).toInt(&isNumber);
    return isNumber && number >= 0 && number <= most ? std::optional<int>(number) : std::nullopt;
}

/** False when a number of the sample trade is none. */
bool readTrade(const QCommandLineParser& parser, SetupOptions* options)
{
    const bool isPeriodSaid = parser.isSet("years") || parser.isSet("months");
    const std::optional<int> years = numberOf(parser, "years", isPeriodSaid ? 0 : 1, 50);
    const std::optional<int> months = numberOf(parser, "months", 0, 600);
    const std::optional<int> perDay = numberOf(parser, "per-day", 100, 10000);
    const std::optional<int> seed = numberOf(parser, "seed", 1, 1000000);
    if (!years || !months || !perDay || !seed || *years + *months == 0 || *perDay == 0)
        return false;
    options->months = 12 * *years + *months;
    options->perDay = *perDay;
    options->seed = *seed;
    return true;
}
} // namespace

SetupOptions SetupOptions::parse(const QStringList& arguments)
{
    QCommandLineParser parser;
    declare(parser);
    if (!parser.parse(arguments))
        return mistake(parser.errorText());
    SetupOptions options;
    if (parser.isSet("help")) {
        options.command = Help;
        options.text = parser.helpText();
        return options;
    }
    const QStringList words = parser.positionalArguments();
    options.command = commandOf(words.value(0));
    if (options.command == Mistake || words.size() != 1)
        return mistake(tr("Say one of: install, update, status, sample-trade (--help tells more)."));

    options.connection.host = parser.value("host");
    options.connection.database = parser.value("database");
    options.connection.user = parser.value("user");
    options.connection.password = qEnvironmentVariable("ZAVEL_DB_PASSWORD");
    options.connection = options.connection.withDefaults();
    bool isNumber = true;
    if (parser.isSet("port"))
        options.connection.port = parser.value("port").toUShort(&isNumber);
    if (!isNumber || options.connection.port == 0)
        return mistake(tr("This is no port: %1").arg(parser.value("port")));

    options.createDatabase = parser.isSet("create-database");
    options.replace = parser.isSet("replace");
    options.adminName = parser.value("admin-name");
    options.adminPassword =
        parser.isSet("admin-password") ? parser.value("admin-password") : qEnvironmentVariable("ZAVEL_ADMIN_PASSWORD");
    options.locale = parser.value("locale");
    if (!options.locale.isEmpty() && QLocale(options.locale).name() != options.locale)
        return mistake(tr("This is no locale: %1").arg(options.locale));
    options.dateFormat = parser.value("date-format");
    options.settingsPath = parser.isSet("settings") ? parser.value("settings") : programSettingsPath();
    options.writeSettings = parser.isSet("write-settings");
    if (!readTrade(parser, &options))
        return mistake(tr("Years, months, sales a day and seed are numbers: up to 50 years, 600 months, 10000 sales "
                          "a day, a seed up to 1000000."));
    return options;
}
