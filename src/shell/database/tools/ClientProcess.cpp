#include "shell/database/tools/ClientProcess.h"

#include "shell/database/tools/ClientPrograms.h"

#include <QDebug>
#include <QTextCodec>
#include <QTextDecoder>

#include <csignal>
#include <sys/prctl.h>
#include <sys/stat.h>
#include <unistd.h>

ClientProcess::ClientProcess(QObject* parent) : QProcess(parent), m_decoder(QTextCodec::codecForLocale()->makeDecoder())
{
    setProcessChannelMode(QProcess::MergedChannels);
    setStandardInputFile(QProcess::nullDevice());
}

ClientProcess::~ClientProcess()
{
    // The receivers are being destroyed.
    disconnect();
    if (state() == QProcess::NotRunning)
        return;
    terminate();
    if (!waitForFinished(5000)) {
        kill();
        waitForFinished(1000);
    }
}

void ClientProcess::run(const ClientCommand& command)
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("PGPASSWORD", command.password);
    // Without a timeout, an unreachable address would block the program for minutes.
    if (!environment.contains("PGCONNECT_TIMEOUT"))
        environment.insert("PGCONNECT_TIMEOUT", "10");
    setProcessEnvironment(environment);
    const QString folder = ClientPrograms::folder(command.name);
    if (!folder.isEmpty())
        setWorkingDirectory(folder);
    qDebug().noquote() << command.arguments.join(' ');
    start(ClientPrograms::path(command.name), command.arguments, QIODevice::ReadOnly);
}

QString ClientProcess::takeOutput() { return m_decoder->toUnicode(readAllStandardOutput()); }

bool ClientProcess::succeeded() const
{
    return state() == QProcess::NotRunning && error() == QProcess::UnknownError &&
           exitStatus() == QProcess::NormalExit && exitCode() == 0;
}

void ClientProcess::setupChildProcess()
{
    // Without a terminal it cannot prompt for a password.
    setsid();
    // Its output files contain password hashes.
    umask(077);
    // A restore must not continue after this program has ended, because it would collide with the next start.
    prctl(PR_SET_PDEATHSIG, SIGTERM);
}
