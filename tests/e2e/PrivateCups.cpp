#include "PrivateCups.h"

#include <QDir>
#include <QElapsedTimer>
#include <QStandardPaths>

#include <cups/http.h>

#include <grp.h>
#include <pwd.h>
#include <unistd.h>

namespace
{
constexpr int patience = 20000;

// cupsd insists that backends do not run as root.
const char* const settingsOfFiles = R"(User %user%
Group %group%
ServerRoot %root%
ServerBin %root%/bin
DataDir /usr/share/cups
StateDir %root%
CacheDir %root%/cache
RequestRoot %root%/spool
TempDir %root%/tmp
ErrorLog %root%/error_log
AccessLog %root%/access_log
PageLog %root%/page_log
)";

const char* const settingsOfServer = R"(Listen %root%/sock
LogLevel info
Browsing Off
DirtyCleanInterval 0
DefaultAuthType None
PreserveJobHistory Yes
<Location />
  Order allow,deny
  Allow all
</Location>
<Policy default>
  <Limit All>
    Order deny,allow
  </Limit>
</Policy>
)";

// One file per job with a sortable number, renamed when complete. A job comes as a file or, from a raw queue, also on
// standard input.
const char* const backend = R"(#!/bin/sh
if [ $# = 0 ]; then echo 'file slipfile "Unknown" "Slips to files"'; exit 0; fi
name=$(printf '%s/%06d' "${DEVICE_URI#slipfile:}" "$1")
cat "${6:--}" > "$name.part" && mv "$name.part" "$name.out"
)";

bool writeFile(const QString& path, const QByteArray& text)
{
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(text) == text.size();
}

QString userName() { return geteuid() == 0 ? QString("lp") : QString::fromLocal8Bit(getpwuid(geteuid())->pw_name); }

QString groupName() { return geteuid() == 0 ? QString("lp") : QString::fromLocal8Bit(getgrgid(getegid())->gr_name); }

QString findTool(const QString& tool)
{
    return QStandardPaths::findExecutable(tool, {"/usr/sbin", "/usr/bin", "/sbin", "/bin"});
}
} // namespace

QString PrivateCups::writeFiles() const
{
    const QString root = m_root.path();
    const QDir folder(root);
    for (const char* name : {"bin/backend", "cache", "spool/tmp", "tmp", "out"}) {
        if (!folder.mkpath(name))
            return "cannot make " + folder.filePath(name);
    }
    // The backends run as another user and need access to write their output.
    const auto passage = QFile::Permissions(0x7755);
    QFile::setPermissions(root, passage);
    QFile::setPermissions(folder.filePath("bin"), passage);
    QFile::setPermissions(folder.filePath("bin/backend"), passage);
    QFile::setPermissions(folder.filePath("out"), QFile::Permissions(0x7777));
    const QStringList parts = QDir("/usr/lib/cups").entryList(QDir::Dirs | QDir::NoDotAndDotDot);
    for (const QString& part : parts) {
        if (part != "backend")
            QFile::link("/usr/lib/cups/" + part, folder.filePath("bin/" + part));
    }

    const auto filledIn = [&](const char* text) {
        return QString(text)
            .replace("%root%", root)
            .replace("%user%", userName())
            .replace("%group%", groupName())
            .toLocal8Bit();
    };
    const QString slipfile = folder.filePath("bin/backend/slipfile");
    if (!writeFile(slipfile, backend) || !QFile::setPermissions(slipfile, passage) ||
        !writeFile(folder.filePath("cups-files.conf"), filledIn(settingsOfFiles)) ||
        !writeFile(folder.filePath("cupsd.conf"), filledIn(settingsOfServer)))
        return "cannot write into " + root;
    return {};
}

QString PrivateCups::start()
{
    const QString cupsd = findTool("cupsd");
    const QString setpriv = findTool("setpriv");
    if (cupsd.isEmpty() || setpriv.isEmpty())
        return "cupsd (package cups-daemon) and setpriv (package util-linux) are required";
    const QString problem = writeFiles();
    if (!problem.isEmpty())
        return problem;

    m_server.setProcessChannelMode(QProcess::MergedChannels);
    m_server.start(setpriv, {"--pdeathsig", "KILL", cupsd, "-f", "-c", m_root.filePath("cupsd.conf"), "-s",
                             m_root.filePath("cups-files.conf")});
    QElapsedTimer waited;
    waited.start();
    while (waited.elapsed() < patience && !m_server.waitForFinished(20) && m_server.state() != QProcess::NotRunning) {
        if (http_t* door =
                httpConnect2(address().constData(), 0, nullptr, AF_LOCAL, HTTP_ENCRYPTION_NEVER, 1, 1000, nullptr)) {
            httpClose(door);
            return {};
        }
    }
    QFile log(m_root.filePath("error_log"));
    return "cupsd does not answer: " + m_server.readAll() + (log.open(QIODevice::ReadOnly) ? log.readAll() : "");
}

void PrivateCups::stop()
{
    if (m_server.state() == QProcess::NotRunning)
        return;
    m_server.kill();
    m_server.waitForFinished(patience);
}

QString PrivateCups::addRawQueue(const QString& name, bool asDefault)
{
    const QString server = QFile::decodeName(address());
    QList<QStringList> calls{{"-h", server, "-p", name, "-E", "-v", "slipfile:" + m_root.filePath("out"), "-m", "raw"}};
    if (asDefault)
        calls.append({"-h", server, "-d", name});
    for (const QStringList& arguments : qAsConst(calls)) {
        QProcess lpadmin;
        lpadmin.setProcessChannelMode(QProcess::MergedChannels);
        lpadmin.start(findTool("lpadmin"), arguments);
        if (!lpadmin.waitForFinished(patience) || lpadmin.exitCode() != 0)
            return "lpadmin " + arguments.join(' ') + ": " + lpadmin.readAll();
    }
    return {};
}

QList<QByteArray> PrivateCups::printed() const
{
    const QDir folder(m_root.filePath("out"));
    QList<QByteArray> jobs;
    const QStringList names = folder.entryList({"*.out"}, QDir::Files, QDir::Name);
    for (const QString& name : names) {
        QFile file(folder.filePath(name));
        jobs.append(file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("unreadable"));
    }
    return jobs;
}
