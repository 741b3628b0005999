#include "tour/StartTour.h"

#include "tour/Guide.h"

#include <QDateTime>
#include <QElapsedTimer>
#include <QTextStream>

void playStart(Guide& guide)
{
    const auto tell = [&guide](const QString& what, qint64 milliseconds) {
        const QString line = QString("%1: %2 ms").arg(what).arg(milliseconds);
        guide.note(line);
        QTextStream(stdout) << line << endl;
    };
    const qint64 started = qEnvironmentVariable("ZAVEL_TOUR_STARTED").toLongLong();
    guide.waitForWindow("DialogLogin");
    tell("start to login", QDateTime::currentMSecsSinceEpoch() - started);
    guide.fill("txtUsername", "admin");
    guide.fill("txtPassword", "Qx7!Rm2z");
    QElapsedTimer timer;
    timer.start();
    guide.key(Qt::Key_Return);
    guide.waitForWindow("MainWindow");
    tell("login to main window", timer.elapsed());
}
