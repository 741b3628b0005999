#include "pos/printing/configuration/ReportTestSlip.h"

#include "app/context/AppContext.h"
#include "pos/printing/configuration/EntityConfigPrinter.h"
#include "pos/printing/printer/EntityPrinterType.h"
#include "pos/printing/printer/PaperCut.h"
#include "pos/printing/printer/SlipText.h"

namespace
{
// '0' instead of a zero byte, which would end the text.
const auto boldOn = QStringLiteral("\x1B"
                                   "E1");
const auto boldOff = QStringLiteral("\x1B"
                                    "E0");

QString ruler(int columns)
{
    QString figures;
    for (int column = 1; column <= columns; ++column)
        figures += QString::number(column % 10);
    return figures;
}

/** The letters and signs of the program's languages, amounts and names. */
QStringList letters()
{
    return {QStringLiteral("ABCDEFGHIJKLMNOPQRSTUVWXYZ"),
            QStringLiteral("abcdefghijklmnopqrstuvwxyz"),
            QStringLiteral("0123456789"),
            QStringLiteral(".,:;!?'\"`()[]{}<>+-*/=%&#@$_|\\^~"),
            QStringLiteral("Rp 1.234.567,89"),
            QString::fromUtf8("áàâä éèêë íìîï óòôö úùûü ñ ç ÄÖÜ É")};
}

/** Breaks the text at the width of the paper, so that the printer need not do it. */
void addPieces(SlipText& slip, const QString& text)
{
    const int width = slip.columns() > 0 ? slip.columns() : text.size();
    for (int at = 0; at < text.size(); at += width)
        slip.line(text.mid(at, width));
}
} // namespace

ReportTestSlip::ReportTestSlip(QObject* parent, const EntityConfigPrinter* settings,
                               const EntityPrinterType* printerType)
    : SlipReport(parent, printerType), m_settings(settings), m_printerType(printerType)
{}

bool ReportTestSlip::print()
{
    EntityConfigPrinter once;
    once.setPrinterName(m_settings->getPrinterName());
    once.setAutoCutter(m_settings->getAutoCutter());
    once.setColumnPaper(m_settings->getColumnPaper());
    once.setNoOfCopy("1");
    // The user asks for a test slip, so show a failure even if no printer was chosen yet.
    once.setPrinterChosen(EntityConfigPrinter::yes());
    SlipPurpose test;
    test.kind = KeptSlip::Test;
    setPurpose(test);
    return printText("Test", compose(*m_settings, m_printerType, QDateTime::currentDateTime()), once);
}

QString ReportTestSlip::compose(const EntityConfigPrinter& settings, const EntityPrinterType* printerType,
                                const QDateTime& moment)
{
    SlipText slip(settings.columns());
    slip.line(ruler(settings.columns()));
    addPieces(slip, tr("Test slip of the printer %1").arg(settings.getPrinterName()));
    addPieces(slip, moment.toString(AppContext::instance()->dateFormat() + " HH:mm:ss"));
    addPieces(slip, tr("Columns: %1").arg(settings.columns()));
    if (printerType)
        addPieces(slip, tr("Type: %1").arg(printerType->getPrinterType()));
    slip.separator();
    const QStringList all = letters();
    for (const QString& line : all)
        addPieces(slip, line);
    slip.separator();
    // A printer without commands would print them as text.
    if (printerType && PaperCut(printerType->getCutPapperCmd()).hasCommand())
        slip.append(boldOn).append(tr("This line is bold.").left(settings.columns())).append(boldOff).line();
    addPieces(slip, settings.cutsPaper() ? tr("The paper is cut below.") : tr("The paper is not cut."));
    slip.lineFeeds(settings.blankLines());
    return slip.text();
}
