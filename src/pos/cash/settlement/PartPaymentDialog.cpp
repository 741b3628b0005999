#include "pos/cash/settlement/PartPaymentDialog.h"

#include "app/money/MinorUnits.h"
#include "pos/cash/settlement/EntityPartPayment.h"

#include "ui_PartPaymentDialog.h"

#include <QMessageBox>

#include <limits>

PartPaymentDialog::PartPaymentDialog(const Words& words, QWidget* parent)
    : KorDialog(parent), m_ui(std::make_unique<Ui::PartPaymentDialog>()), m_wrongAmount(words.wrongAmount)
{
    m_ui->setupUi(this);
    setWindowTitle(words.title);
    m_ui->lblInvoiceNo->setText(words.number);
    makeTouchable(m_ui->buttonBox);
}

PartPaymentDialog::~PartPaymentDialog() = default;

void PartPaymentDialog::setEntity(KorEntity* line)
{
    m_line = static_cast<EntityPartPayment*>(line);
    const Money* due = m_line->getAmountDue();
    m_due = double(due->rawAmount()) + m_line->getAmountPaid()->rawAmount();
    m_ui->txtInvoiceNo->setText(m_line->documentNo());
    m_ui->txtDue->setMoney(minorUnits(m_due, due->getCurrency()).get());
    m_ui->txtPaid->setMoney(m_line->getAmountPaid());
    on_txtPaid_textChanged(m_ui->txtPaid->text());
    // Typing replaces the present amount.
    m_ui->txtPaid->selectAll();
    m_ui->txtPaid->setFocus(Qt::TabFocusReason);
}

double PartPaymentDialog::entered() const { return m_ui->txtPaid->value() * m_line->getAmountDue()->factor(); }

void PartPaymentDialog::on_txtPaid_textChanged(const QString&)
{
    if (m_line)
        m_ui->txtRemaining->setMoney(minorUnits(remaining(), m_line->getAmountDue()->getCurrency()).get());
}

bool PartPaymentDialog::validate()
{
    constexpr double largest = std::numeric_limits<int>::max();
    const bool isNumber = m_ui->txtPaid->isValid();
    const double paid = entered();
    if (!isNumber || paid < 0 || (paid <= 0 && !m_mayBeNothing))
        addError(m_ui->txtPaid, m_wrongAmount);
    else if (paid > largest || -remaining() > largest)
        addError(m_ui->txtPaid, tr("This amount is too large. Please check the figures."));
    return !hasError();
}

bool PartPaymentDialog::beforeAccept()
{
    return remaining() >= 0 ||
           QMessageBox::question(this, tr("Question"),
                                 tr("The amount paid is larger than the amount due. Do you want to book all of it?"),
                                 QMessageBox::Yes | QMessageBox::No, QMessageBox::No) == QMessageBox::Yes;
}

KorEntity* PartPaymentDialog::getEntity()
{
    const QString currency = m_line->getAmountDue()->getCurrency();
    const double left = remaining();
    m_line->setAmountPaid(minorUnits(m_due - left, currency).get());
    m_line->setAmountDue(minorUnits(left, currency).get());
    return m_line;
}
