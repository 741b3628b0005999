#include "pos/printing/configuration/PrinterConfigDialog.h"

#include "app/context/EntityPool.h"
#include "app/widgets/AppNumberEdit.h"
#include "kor/business/KorServiceDirectory.h"
#include "kor/widgets/KorErrorBox.h"
#include "pos/printing/configuration/EntityConfigPrinter.h"
#include "pos/printing/printer/BusinessPrinterType.h"
#include "pos/printing/spooler/SlipSpooler.h"

#include <QComboBox>

namespace
{
constexpr int mostCopies = 5;

/** What is no longer offered leaves the first entry chosen. */
void choose(QComboBox* box, int index) { box->setCurrentIndex(qMax(index, 0)); }
} // namespace

void PrinterConfigDialog::fillChoices()
{
    const QList<SlipPrinter> printers = SlipSpooler::listPrinters();
    m_hasPrinters = !printers.isEmpty();
    for (const SlipPrinter& printer : printers) {
        m_fields.printer->addItem(printer.name, printer.name);
        if (printer.isDefault)
            m_fields.printer->setCurrentIndex(m_fields.printer->count() - 1);
    }

    EntityPool read;
    const EntityPoolScope scope(read);
    auto* types = service<BusinessPrinterType>("Printer Type");
    const QList<EntityPrinterType*> all = types->getAll();
    for (const EntityPrinterType* type : all)
        m_fields.printerType->addItem(type->getPrinterType(), type->getId());
    if (types->hasError())
        showError(types->takeErrors());

    m_fields.autoCut->addItem(tr("Yes"), EntityConfigPrinter::yes());
    m_fields.autoCut->addItem(tr("No"), EntityConfigPrinter::no());
    for (int copies = 1; copies <= mostCopies; ++copies)
        m_fields.copies->addItem(QString::number(copies), QString::number(copies));
}

void PrinterConfigDialog::showPrinter(const EntityConfigPrinter& config)
{
    // Where no printer can be listed, the stored one stays, so that looking at the form does not lose it.
    if (m_fields.printer->count() == 0 && !config.getPrinterName().isEmpty())
        m_fields.printer->addItem(config.getPrinterName(), config.getPrinterName());
    choose(m_fields.printer, m_fields.printer->findData(config.getPrinterName()));
    choose(m_fields.printerType, m_fields.printerType->findText(config.getPrinterType(), Qt::MatchFixedString));
    choose(m_fields.autoCut, m_fields.autoCut->findData(config.getAutoCutter()));
    choose(m_fields.copies, m_fields.copies->findData(config.getNoOfCopy()));
    m_fields.columns->setValue(config.columns());
    m_fields.blankLines->setValue(config.blankLines());
}

void PrinterConfigDialog::readPrinter(EntityConfigPrinter& config) const
{
    config.setPrinterName(m_fields.printer->currentData().toString());
    // A queue may well bear the installer's name; then it was chosen.
    if (m_hasPrinters && config.isAsInstalled())
        config.setPrinterChosen(EntityConfigPrinter::yes());
    EntityPool read;
    const EntityPoolScope scope(read);
    const int typeId = m_fields.printerType->currentData().toInt();
    const auto* type = qobject_cast<EntityPrinterType*>(service<BusinessPrinterType>("Printer Type")->find(typeId));
    if (type)
        config.setPrinterType(type->getPrinterType());
    config.setAutoCutter(m_fields.autoCut->currentData().toString());
    config.setNoOfCopy(m_fields.copies->currentData().toString());
    config.setColumnPaper(QString::number(qRound(m_fields.columns->value())));
    config.setNoOfBlankLines(QString::number(qRound(m_fields.blankLines->value())));
}

void PrinterConfigDialog::showSaveError(const QString& text) { KorErrorBox::critical(this, tr("Error!"), text); }
