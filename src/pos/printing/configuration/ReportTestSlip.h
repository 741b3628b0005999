#pragma once

#include "pos/printing/configuration/SlipReport.h"

#include <QDateTime>

/** A slip that shows what a printer makes of its settings: width, letters, bold and cut. One copy, whatever they say.
 */
class ReportTestSlip final : public SlipReport
{
    Q_OBJECT

public:
    /** The settings as a form shows them, saved or not. */
    ReportTestSlip(QObject* parent, const EntityConfigPrinter* settings, const EntityPrinterType* printerType);

    bool print() override;

    [[nodiscard]] static QString compose(const EntityConfigPrinter& settings, const EntityPrinterType* printerType,
                                         const QDateTime& moment);

private:
    const EntityConfigPrinter* m_settings;
    const EntityPrinterType* m_printerType;
};
