#pragma once

#include "pos/printing/printer/AppLinePrinter.h"

class EntityConfigPrinter;
class EntityPrinterType;

/** Base of the slips for a configured printer. The records are borrowed; a report is used for one print call. */
class SlipReport : public AppLinePrinter
{
    Q_OBJECT

public:
    /** The type defines the cut sequence for all printers; null means no cut. */
    SlipReport(QObject* parent, const EntityPrinterType* printerType);

protected:
    /** Prints the text with the settings for printer, copies and cut. */
    bool printText(const QString& title, const QString& text, const EntityConfigPrinter& settings);
    /** The job that printText() would send; for slips that go to several printers at once. */
    [[nodiscard]] SlipQueue::Job jobFor(const QString& title, const QString& text, const EntityConfigPrinter& settings);

public:
    /** A sentence for the error box: what is saved although the slip failed. Empty if nothing was. */
    void setStanding(const QString& sentence);

private:
    const EntityPrinterType* m_printerType;
};
