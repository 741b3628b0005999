#include "pos/printing/configuration/SlipReport.h"

#include "pos/printing/configuration/EntityConfigPrinter.h"
#include "pos/printing/printer/EntityPrinterType.h"

SlipReport::SlipReport(QObject* parent, const EntityPrinterType* printerType)
    : AppLinePrinter(parent), m_printerType(printerType)
{}

bool SlipReport::printText(const QString& title, const QString& text, const EntityConfigPrinter& settings)
{
    QByteArray cutSequence;
    if (settings.cutsPaper() && m_printerType)
        cutSequence = decodeControlSequence(m_printerType->getCutPapperCmd());
    return printCopies(settings.getPrinterName(), title, text.toUtf8(), settings.copies(), cutSequence);
}
