#include "GrownCatalogue.h"
#include "setup/DatabaseSetup.h"

/** The console program of the newer version. */
int main(int argc, char** argv)
{
    const QCoreApplication application(argc, argv);
    addGrownCatalogue();
    return DatabaseSetup(SetupOptions::parse(QCoreApplication::arguments())).run();
}
