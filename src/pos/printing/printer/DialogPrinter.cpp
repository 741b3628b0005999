#include "pos/printing/printer/DialogPrinter.h"

#include "pos/printing/spooler/SlipSpooler.h"

#include "ui_DialogPrinter.h"

DialogPrinter::DialogPrinter(QWidget* parent) : QDialog(parent), m_ui(std::make_unique<Ui::DialogPrinter>())
{
    m_ui->setupUi(this);
    const QList<SlipPrinter> printers = SlipSpooler::listPrinters();
    for (const SlipPrinter& printer : printers)
        m_ui->ddlPrinter->addItem(printer.isDefault ? printer.name + tr("[default]") : printer.name, printer.name);
}

DialogPrinter::~DialogPrinter() = default;

void DialogPrinter::on_pushButton_clicked()
{
    // The text is not used: this form only lists printers and sends nothing.
    const QByteArray testText("testing veri long tesxa dddasd asdsa\r\n");
    Q_UNUSED(testText)
}
