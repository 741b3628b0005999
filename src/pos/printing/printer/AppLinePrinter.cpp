#include "pos/printing/printer/AppLinePrinter.h"

#include "pos/printing/printer/PrintHelper.h"
#include "pos/printing/printer/SlipSpooler.h"

#include <QApplication>
#include <QDebug>
#include <QMessageBox>

AppLinePrinter::AppLinePrinter(QObject* parent) : QObject(parent) {}

AppLinePrinter::~AppLinePrinter() = default;

bool AppLinePrinter::openPrinter(const QString& documentName)
{
    qDebug().noquote() << "opening printer:" + m_printerName;
    auto spooler = SlipSpooler::create();
    if (!spooler->openPrinter(m_printerName, documentName)) {
        qWarning().noquote() << spooler->errorText();
        return false;
    }
    m_printerHandle = std::move(spooler);
    qDebug() << "Printer opened";
    qDebug() << "Job is set.";
    return true;
}

bool AppLinePrinter::writeText(const char* bytes)
{
    if (!m_printerHandle)
        return false;
    qDebug() << "Writing text to printer";
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

bool AppLinePrinter::printCopies(const QString& printerName, const QString& title, const QByteArray& body, int copies,
                                 const QByteArray& cutSequence)
{
    setPrinterName(printerName);
    if (!openPrinter(title)) {
        showError(tr("Error Opening Printer:") + printerName);
        return false;
    }
    bool done = true;
    for (int copy = 0; copy < copies; ++copy) {
        done = writeText(body.constData()) && done;
        if (!cutSequence.isEmpty())
            done = writeText(cutSequence.constData()) && done;
    }
    // The sale stands either way, and whether the slip came out is seen at the printer.
    closePrinter();
    return done;
}

void AppLinePrinter::showError(const QString& text)
{
    QMessageBox::critical(QApplication::activeWindow(), tr("Error"), text);
}
