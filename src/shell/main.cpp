#include "shell/ZavelApplication.h"

int main(int argc, char** argv)
{
    // Named, the C library reads the zone's file once; unnamed, it looks for a change before every time stamp that is
    // read from the database, which is a tenth of all reading.
    if (!qEnvironmentVariableIsSet("TZ"))
        qputenv("TZ", ":/etc/localtime");
    ZavelApplication application(argc, argv);
    return application.run();
}
