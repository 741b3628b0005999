#include "kor/install/KorInstallerThread.h"

#include "kor/install/KorInstaller.h"

#include <QThread>

void startInstaller(KorInstaller* installer)
{
    auto* thread = new QThread;
    installer->moveToThread(thread);
    QObject::connect(thread, &QThread::started, installer, &KorInstaller::process);
    QObject::connect(installer, &KorInstaller::finished, thread, &QThread::quit);
    QObject::connect(installer, &KorInstaller::finished, installer, &QObject::deleteLater);
    QObject::connect(thread, &QThread::finished, thread, &QObject::deleteLater);
    thread->start(QThread::InheritPriority);
}
