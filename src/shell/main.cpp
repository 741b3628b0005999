#include "shell/window/ZavelApplication.h"

#include <QTextCodec>

int main(int argc, char** argv)
{
    // With TZ set, the C library reads the time zone file once. Without it, it checks for changes before every
    // timestamp read from the database, which takes a tenth of the whole read time.
    if (!qEnvironmentVariableIsSet("TZ"))
        qputenv("TZ", ":/etc/localtime");
    // Passes file names, database names and passwords to the PostgreSQL programs as UTF-8, independent of the locale.
    QTextCodec::setCodecForLocale(QTextCodec::codecForName("UTF-8"));
    ZavelApplication application(argc, argv);
    return application.run();
}
