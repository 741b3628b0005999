#include "pos/printing/configuration/SlipReport.h"

#include "pos/printing/configuration/EntityConfigPrinter.h"
#include "pos/printing/printer/EntityPrinterType.h"

SlipReport::SlipReport(QObject* parent, const EntityPrinterType* printerType)
    : AppLinePrinter(parent), m_printerType(printerType)
{}

SlipQueue::Job SlipReport::jobFor(const QString& title, const QString& text, const EntityConfigPrinter& settings)
{
    QByteArray cutSequence;
    if (settings.cutsPaper() && m_printerType)
        cutSequence = decodeControlSequence(m_printerType->getCutPapperCmd());
    SlipPurpose known = purpose();
    known.columns = settings.columns();
    known.withoutPrinter = settings.isAsInstalled();
    setPurpose(known);
    return jobOf(settings.getPrinterName(), title, text.toUtf8(), settings.copies(), cutSequence);
}

bool SlipReport::printText(const QString& title, const QString& text, const EntityConfigPrinter& settings)
{
    setPrinterName(settings.getPrinterName());
    return printTogether({jobFor(title, text, settings)});
}

void SlipReport::setStanding(const QString& sentence)
{
    SlipPurpose known = purpose();
    known.standing = sentence;
    setPurpose(known);
}
