#include "pos/printing/printer/SlipSpooler.h"

#include "pos/printing/printer/CupsSlipSpooler.h"
#include "pos/printing/printer/FolderSlipSpooler.h"

std::unique_ptr<SlipSpooler> SlipSpooler::create()
{
    const QString folder = FolderSlipSpooler::folderFromEnvironment();
    if (!folder.isEmpty())
        return std::make_unique<FolderSlipSpooler>(folder);
    return std::make_unique<CupsSlipSpooler>();
}

bool SlipSpooler::openPrinter(const QString& printerName, const QString& title)
{
    clearError();
    if (isOpen())
        return fail(tr("A slip is being printed already."));
    if (printerName.isEmpty())
        return fail(tr("No printer is chosen."));
    if (!startJob(printerName, title)) {
        dropJob();
        return false;
    }
    m_state = State::Open;
    return true;
}

bool SlipSpooler::write(const QByteArray& bytes)
{
    clearError();
    switch (m_state) {
    case State::Closed:
        return fail(tr("The printer is not open."));
    case State::Broken:
        return false;
    case State::Open:
        break;
    }
    // Nothing to send must not reach the transport: to a chunked stream an empty write means the end.
    if (!bytes.isEmpty() && !sendBytes(bytes))
        m_state = State::Broken;
    return m_state == State::Open;
}

bool SlipSpooler::close()
{
    clearError();
    const State state = m_state;
    m_state = State::Closed;
    if (state == State::Closed)
        return fail(tr("The printer is not open."));
    if (state == State::Open && finishJob())
        return true;
    dropJob();
    return false;
}

bool SlipSpooler::fail(const QString& errorText)
{
    m_errorText = errorText;
    return false;
}
