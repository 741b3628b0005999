#pragma once

#include "pos/printing/configuration/SlipReport.h"

#include <QDateTime>

/** A slip to test a printer's settings: width, letters, bold and cut. Always one copy. */
class ReportTestSlip final : public SlipReport
{
    Q_OBJECT

public:
    /** The settings as shown in the form, saved or not. */
    ReportTestSlip(QObject* parent, const EntityConfigPrinter* settings, const EntityPrinterType* printerType);

    bool print() override;

    [[nodiscard]] static QString compose(const EntityConfigPrinter& settings, const EntityPrinterType* printerType,
                                         const QDateTime& moment);

private:
    const EntityConfigPrinter* m_settings;
    const EntityPrinterType* m_printerType;
};
