#include "setup/DatabaseSetup.h"

#include <QCoreApplication>
#include <QTextStream>

int main(int argc, char** argv)
{
    const QCoreApplication application(argc, argv);
    const SetupOptions options = SetupOptions::parse(QCoreApplication::arguments());
    switch (options.command) {
    case SetupOptions::Help:
        QTextStream(stdout) << options.text;
        return 0;
    case SetupOptions::Mistake:
        QTextStream(stderr) << options.text << Qt::endl;
        return 2;
    default:
        return DatabaseSetup(options).run();
    }
}
