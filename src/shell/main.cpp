#include "shell/window/ZavelApplication.h"

#include <QTextCodec>

int main(int argc, char** argv)
{
    // Named, the C library reads the zone's file once; unnamed, it looks for a change before every time stamp that is
    // read from the database, which is a tenth of all reading.
    if (!qEnvironmentVariableIsSet("TZ"))
        qputenv("TZ", ":/etc/localtime");
    // File names, database names and passwords go to PostgreSQL's programs as UTF-8, whatever the locale is.
    QTextCodec::setCodecForLocale(QTextCodec::codecForName("UTF-8"));
    ZavelApplication application(argc, argv);
    return application.run();
}
