#include "pos/printing/configuration/PrinterConfigDialog.h"

#include "app/context/EntityPool.h"
#include "app/widgets/AppNumberEdit.h"
#include "kor/business/KorErrorScope.h"
#include "kor/business/KorServiceDirectory.h"
#include "kor/widgets/KorErrorBox.h"
#include "pos/printing/configuration/EntityConfigPrinter.h"
#include "pos/printing/configuration/ReportTestSlip.h"
#include "pos/printing/printer/BusinessPrinterType.h"
#include "pos/printing/printer/PaperCut.h"
#include "pos/printing/spooler/SlipSpooler.h"

#include <QComboBox>
#include <QEvent>
#include <QLabel>
#include <QPushButton>

namespace
{
constexpr int mostCopies = 5;

/** Selects the first entry if the stored value is no longer offered. */
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

    fillTypes();
    m_fields.autoCut->addItem(tr("Yes"), EntityConfigPrinter::yes());
    m_fields.autoCut->addItem(tr("No"), EntityConfigPrinter::no());
    for (int copies = 1; copies <= mostCopies; ++copies)
        m_fields.copies->addItem(QString::number(copies), QString::number(copies));
}

void PrinterConfigDialog::fillTypes()
{
    EntityPool read;
    const EntityPoolScope scope(read);
    auto* types = service<BusinessPrinterType>("Printer Type");
    KorErrorScope errors(types);
    const QList<EntityPrinterType*> all = types->getAll();
    for (const EntityPrinterType* type : all) {
        m_fields.printerType->addItem(type->getPrinterType(), type->getId());
        m_cuts.insert(type->getPrinterType(), type->getCutPapperCmd());
    }
    showError(errors.take());
}

void PrinterConfigDialog::watchChoices()
{
    const auto chosen = QOverload<int>::of(&QComboBox::currentIndexChanged);
    connect(m_fields.printerType, chosen, this, &PrinterConfigDialog::tellCut);
    connect(m_fields.printer, chosen, this,
            [this] { m_fields.testSlip->setEnabled(!m_fields.printer->currentData().toString().isEmpty()); });
    m_fields.testSlip->setEnabled(!m_fields.printer->currentData().toString().isEmpty());
    m_fields.cut->installEventFilter(this);
    connect(m_fields.testSlip, &QPushButton::clicked, this, &PrinterConfigDialog::printTestSlip);
    tellCut();
}

void PrinterConfigDialog::offerNoPrinter(const QString& words)
{
    m_fields.printer->addItem(words, QString());
    m_fields.printer->setItemData(m_fields.printer->count() - 1, words, Qt::ToolTipRole);
}

void PrinterConfigDialog::setCutRemark(const QString& remark)
{
    m_cutRemark = remark;
    tellCut();
}

QString PrinterConfigDialog::cutWords(const QString& type) const
{
    const PaperCut cut(m_cuts.value(type));
    QStringList sentences{cut.description()};
    for (auto other = m_cuts.cbegin(); other != m_cuts.cend(); ++other) {
        if (PaperCut(*other).completes(cut)) {
            // Non-breaking hyphens, so that the name of a type stays on one line.
            sentences.append(tr("Choose %1 instead.").arg(QString(other.key()).replace('-', QChar(0x2011))));
            break;
        }
    }
    if (!m_cutRemark.isEmpty())
        sentences.append(m_cutRemark);
    return sentences.join(' ');
}

void PrinterConfigDialog::tellCut()
{
    const QString type = m_fields.printerType->currentText();
    m_fields.cut->setText(type.isEmpty() ? QString() : cutWords(type));
}

void PrinterConfigDialog::keepRoomForCut()
{
    constexpr int anyHeight = 10000;
    const QRect column(0, 0, m_fields.cut->width(), anyHeight);
    int height = 0;
    for (auto type = m_cuts.keyBegin(); type != m_cuts.keyEnd(); ++type) {
        const QRect words = m_fields.cut->fontMetrics().boundingRect(column, Qt::TextWordWrap, cutWords(*type));
        height = qMax(height, words.height());
    }
    m_fields.cut->setMinimumHeight(height);
}

bool PrinterConfigDialog::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == m_fields.cut && event->type() == QEvent::Resize)
        keepRoomForCut();
    return KorDialog::eventFilter(watched, event);
}

EntityPrinterType* PrinterConfigDialog::readType() const
{
    const int typeId = m_fields.printerType->currentData().toInt();
    return qobject_cast<EntityPrinterType*>(service<BusinessPrinterType>("Printer Type")->find(typeId));
}

void PrinterConfigDialog::printTestSlip()
{
    EntityPool read;
    const EntityPoolScope scope(read);
    EntityConfigPrinter shown;
    readPrinter(shown);
    ReportTestSlip(this, &shown, readType()).print();
}

void PrinterConfigDialog::showPrinter(const EntityConfigPrinter& config)
{
    // If printers cannot be listed, add the stored one, so that confirming the form does not lose it.
    if (!m_hasPrinters && m_fields.printer->findData(config.getPrinterName()) < 0 && !config.getPrinterName().isEmpty())
        m_fields.printer->insertItem(0, config.getPrinterName(), config.getPrinterName());
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
    // A print queue may have the same name as the installer's entry; then the user chose it.
    if (m_hasPrinters && config.isAsInstalled())
        config.setPrinterChosen(EntityConfigPrinter::yes());
    EntityPool read;
    const EntityPoolScope scope(read);
    if (const EntityPrinterType* type = readType())
        config.setPrinterType(type->getPrinterType());
    config.setAutoCutter(m_fields.autoCut->currentData().toString());
    config.setNoOfCopy(m_fields.copies->currentData().toString());
    config.setColumnPaper(QString::number(qRound(m_fields.columns->value())));
    config.setNoOfBlankLines(QString::number(qRound(m_fields.blankLines->value())));
}

void PrinterConfigDialog::showSaveError(const QString& text) { KorErrorBox::critical(this, tr("Error!"), text); }
