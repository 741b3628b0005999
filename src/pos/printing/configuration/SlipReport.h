#pragma once

#include "pos/printing/printer/AppLinePrinter.h"

class EntityConfigPrinter;
class EntityPrinterType;

/** Base of the slips that go to a configured printer. The records are borrowed, and a report lives for one print call.
 */
class SlipReport : public AppLinePrinter
{
    Q_OBJECT

public:
    /** The type tells how paper is cut, whichever printer the slip goes to; without one nothing is cut. */
    SlipReport(QObject* parent, const EntityPrinterType* printerType);

protected:
    /** Prints the text as the settings say: which printer, how many copies, cut or not. */
    bool printText(const QString& title, const QString& text, const EntityConfigPrinter& settings);
    /** The job that printText would hand over; for slips that go to several printers at once. */
    [[nodiscard]] SlipQueue::Job jobFor(const QString& title, const QString& text, const EntityConfigPrinter& settings);

public:
    /** What stands although the slip failed; empty where nothing was saved for it. */
    void setStanding(const QString& sentence);

private:
    const EntityPrinterType* m_printerType;
};
