#include "pos/printing/printer/AppLinePrinter.h"

#include "pos/printing/printer/PrintHelper.h"
#include "pos/printing/spooler/SlipSpooler.h"

#include <QApplication>
#include <QDebug>
#include <QMessageBox>

AppLinePrinter::AppLinePrinter(QObject* parent) : QObject(parent) {}

AppLinePrinter::~AppLinePrinter() = default;

bool AppLinePrinter::openPrinter(const QString& documentName)
{
    auto spooler = SlipSpooler::create();
    if (!spooler->openPrinter(m_printerName, documentName)) {
        qWarning().noquote() << spooler->errorText();
        return false;
    }
    m_printerHandle = std::move(spooler);
    return true;
}

bool AppLinePrinter::writeText(const char* bytes)
{
    if (!m_printerHandle)
        return false;
    if (m_printerHandle->write(QByteArray(bytes)))
        return true;
    if (!m_printerHandle->errorText().isEmpty())
        showError(m_printerHandle->errorText());
    return false;
}

bool AppLinePrinter::closePrinter()
{
    if (!m_printerHandle)
        return false;
    if (m_printerHandle->close())
        return true;
    if (!m_printerHandle->errorText().isEmpty())
        qWarning().noquote() << m_printerHandle->errorText();
    return false;
}

QString AppLinePrinter::repeatChar(QChar ch, int count) { return PrintHelper::repeatChar(ch, count); }

QString AppLinePrinter::justify(const QString& text, QTextStream::FieldAlignment alignment, int width)
{
    return PrintHelper::justify(text, alignment, width);
}

QByteArray AppLinePrinter::decodeControlSequence(const QString& text)
{
    QByteArray bytes;
    const QStringList tokens = text.split('#');
    for (const QString& token : tokens) {
        bool isNumber = false;
        const int value = token.toInt(&isNumber, 10);
        if (isNumber)
            bytes.append(static_cast<char>(value & 0xFF));
        else
            bytes.append(token.isEmpty() ? '\0' : token.at(0).toLatin1());
    }
    return bytes;
}

namespace
{
/** The bytes before the first zero byte, which ends a text for the printer. */
QByteArray upToZero(const QByteArray& bytes) { return QByteArray(bytes.constData()); }
} // namespace

SlipQueue::Job AppLinePrinter::jobOf(const QString& printerName, const QString& title, const QByteArray& body,
                                     int copies, const QByteArray& cutSequence) const
{
    const QByteArray copy = upToZero(body) + upToZero(cutSequence);
    return {m_purpose, printerName, title, copy.repeated(qMax(copies, 0))};
}

bool AppLinePrinter::printCopies(const QString& printerName, const QString& title, const QByteArray& body, int copies,
                                 const QByteArray& cutSequence)
{
    setPrinterName(printerName);
    return printTogether({jobOf(printerName, title, body, copies, cutSequence)});
}

bool AppLinePrinter::printTogether(const QList<SlipQueue::Job>& jobs)
{
    bool done = true;
    const QList<SlipQueue::Verdict> verdicts = SlipQueue::instance()->handOver(jobs);
    for (int i = 0; i < jobs.size(); ++i)
        done = SlipQueue::tell(verdicts[i], jobs[i]) && done;
    // The job is closed: a new spooler, so that a later write fails with an error.
    m_printerHandle = SlipSpooler::create();
    return done;
}

void AppLinePrinter::showError(const QString& text)
{
    QMessageBox::critical(QApplication::activeWindow(), tr("Error"), text);
}
