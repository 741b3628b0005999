#include "pos/printing/spooler/FolderSlipSpooler.h"

#include <QRegularExpression>

#include <algorithm>

namespace
{
constexpr auto slipEnding = ".slip";
constexpr auto jobEnding = ".part";

QString safeName(const QString& name)
{
    static const QRegularExpression unsafe("[^A-Za-z0-9._-]");
    constexpr int longest = 60;
    return QString(name).replace(unsafe, "_").left(longest);
}
} // namespace

FolderSlipSpooler::FolderSlipSpooler(const QString& folder) : m_folder(folder) {}

FolderSlipSpooler::~FolderSlipSpooler() { dropJob(); }

QString FolderSlipSpooler::folderFromEnvironment() { return qEnvironmentVariable("ZAVEL_SPOOL_DIR"); }

QList<SlipPrinter> FolderSlipSpooler::availablePrinters()
{
    clearError();
    QList<SlipPrinter> printers;
    QFile names(m_folder.filePath("printers"));
    if (!names.exists())
        return printers;
    if (!names.open(QIODevice::ReadOnly | QIODevice::Text)) {
        fail(names.fileName() + ": " + names.errorString());
        return printers;
    }
    const QStringList lines = QString::fromUtf8(names.readAll()).split('\n');
    for (const QString& line : lines) {
        if (!line.trimmed().isEmpty())
            printers.append({line.trimmed(), printers.isEmpty()});
    }
    return printers;
}

bool FolderSlipSpooler::accepts(const QString& printerName)
{
    if (!m_folder.exists("printers"))
        return true;
    const QList<SlipPrinter> printers = availablePrinters();
    return std::any_of(printers.cbegin(), printers.cend(),
                       [&](const SlipPrinter& printer) { return printer.name == printerName; });
}

bool FolderSlipSpooler::startJob(const QString& printerName, const QString& title)
{
    if (!m_folder.mkpath("."))
        return fail(tr("The folder %1 cannot be made.").arg(m_folder.path()));
    if (!accepts(printerName))
        return errorText().isEmpty() ? fail(tr("The printer %1 does not exist.").arg(printerName)) : false;
    if (!takeNumber())
        return fail(m_file.fileName() + ": " + m_file.errorString());
    m_finalName = m_number + '-' + safeName(printerName) + '-' + safeName(title) + slipEnding;
    return true;
}

bool FolderSlipSpooler::takeNumber()
{
    int last = 0;
    const QStringList taken = m_folder.entryList({QString("*") + slipEnding, QString("*") + jobEnding}, QDir::Files);
    for (const QString& name : taken)
        last = qMax(last, name.section(QRegularExpression("[-.]"), 0, 0).toInt());

    // Several programs may print into one folder. Only one can create the job file of a number, and a later one may
    // find that the slip with this number is already finished.
    for (;;) {
        m_number = QString("%1").arg(++last, 6, 10, QChar('0'));
        m_file.setFileName(m_folder.filePath(m_number + jobEnding));
        if (!m_file.open(QIODevice::NewOnly | QIODevice::WriteOnly | QIODevice::Unbuffered)) {
            if (m_file.exists())
                continue;
            return false;
        }
        if (!isTaken(m_number))
            return true;
        m_file.remove();
    }
}

bool FolderSlipSpooler::isTaken(const QString& number) const
{
    return !m_folder.entryList({number + "-*" + slipEnding}, QDir::Files).isEmpty();
}

SlipSpooler::Fate FolderSlipSpooler::fateOf(const QString& mark, const QString& reference)
{
    Q_UNUSED(mark)
    return isTaken(reference) ? Fate::Printed : Fate::NotThere;
}

SlipSpooler::Fate FolderSlipSpooler::findLeftJob(const QString& mark, const QString& reference)
{
    if (reference.isEmpty())
        return Fate::NotThere;
    m_folder.remove(reference + jobEnding);
    return fateOf(mark, reference);
}

bool FolderSlipSpooler::sendBytes(const QByteArray& bytes)
{
    if (m_file.write(bytes) == bytes.size())
        return true;
    return fail(m_file.fileName() + ": " + m_file.errorString());
}

bool FolderSlipSpooler::finishJob()
{
    m_file.close();
    if (!m_file.rename(m_folder.filePath(m_finalName)))
        return fail(m_file.fileName() + ": " + m_file.errorString());
    m_finalName.clear();
    return true;
}

void FolderSlipSpooler::dropJob()
{
    if (m_finalName.isEmpty())
        return;
    m_file.remove();
    m_finalName.clear();
}
