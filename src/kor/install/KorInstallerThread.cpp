#include "kor/install/KorInstallerThread.h"

#include "kor/install/KorInstaller.h"

#include <QCoreApplication>
#include <QThread>

void startInstaller(KorInstaller* installer)
{
    auto* thread = new QThread;
    installer->moveToThread(thread);
    QObject::connect(thread, &QThread::started, installer, &KorInstaller::process);
    // Not by way of the program's own thread, which may be waiting for this one.
    QObject::connect(installer, &KorInstaller::finished, thread, &QThread::quit, Qt::DirectConnection);
    // A program that is closed meanwhile stays until the work is done rather than to leave half of it.
    QObject::connect(QCoreApplication::instance(), &QCoreApplication::aboutToQuit, thread,
                     [thread] { thread->wait(); });
    QObject::connect(installer, &KorInstaller::finished, installer, &QObject::deleteLater);
    QObject::connect(thread, &QThread::finished, thread, &QObject::deleteLater);
    thread->start(QThread::InheritPriority);
}
