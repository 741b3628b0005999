#include "pos/printing/spooler/SlipSpooler.h"

#include "pos/printing/spooler/CupsSlipSpooler.h"
#include "pos/printing/spooler/FolderSlipSpooler.h"

#include <QDebug>

#include <chrono>
#include <future>
#include <thread>

QList<SlipPrinter> SlipSpooler::listPrinters()
{
    if (hasOneLine())
        return create()->availablePrinters();
    // If the answer is late, the thread continues alone and its result is dropped.
    std::packaged_task<QList<SlipPrinter>()> question([] { return create()->availablePrinters(); });
    std::future<QList<SlipPrinter>> answer = question.get_future();
    std::thread(std::move(question)).detach();
    constexpr auto patience = std::chrono::milliseconds(2000);
    return answer.wait_for(patience) == std::future_status::ready ? answer.get() : QList<SlipPrinter>();
}

std::unique_ptr<SlipSpooler> SlipSpooler::create()
{
    const QString folder = FolderSlipSpooler::folderFromEnvironment();
    if (!folder.isEmpty())
        return std::make_unique<FolderSlipSpooler>(folder);
    return std::make_unique<CupsSlipSpooler>();
}

bool SlipSpooler::hasOneLine() { return !FolderSlipSpooler::folderFromEnvironment().isEmpty(); }

bool SlipSpooler::openPrinter(const QString& printerName, const QString& title)
{
    qDebug().noquote() << "opening printer:" + printerName;
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
    qDebug() << "Printer opened";
    qDebug() << "Job is set.";
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
        qDebug() << "Writing text to printer";
        break;
    }
    // Skip empty writes: in a chunked stream they would mean the end.
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
