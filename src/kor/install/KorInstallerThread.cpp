#include "kor/install/KorInstallerThread.h"

#include "kor/install/KorInstaller.h"

#include <QCoreApplication>
#include <QThread>

void startInstaller(KorInstaller* installer)
{
    auto* thread = new QThread;
    installer->moveToThread(thread);
    QObject::connect(thread, &QThread::started, installer, &KorInstaller::process);
    // Direct, not queued to the application's thread, which may be waiting for this one.
    QObject::connect(installer, &KorInstaller::finished, thread, &QThread::quit, Qt::DirectConnection);
    // If the program is closed meanwhile it waits, so that the installation is not left half done.
    QObject::connect(QCoreApplication::instance(), &QCoreApplication::aboutToQuit, thread,
                     [thread] { thread->wait(); });
    QObject::connect(installer, &KorInstaller::finished, installer, &QObject::deleteLater);
    QObject::connect(thread, &QThread::finished, thread, &QObject::deleteLater);
    thread->start(QThread::InheritPriority);
}
