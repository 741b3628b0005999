#include "sales/receivable/DialogBayarPiutang.h"

#include "sales/receivable/AmountLeft.h"
#include "sales/receivable/EntityPiutangDetail.h"

#include "ui_DialogBayarPiutang.h"

#include <QMessageBox>

DialogBayarPiutang::DialogBayarPiutang(QWidget* parent)
    : KorDialog(parent), m_ui(std::make_unique<Ui::DialogBayarPiutang>())
{
    m_ui->setupUi(this);
    makeTouchable(m_ui->buttonBox);
}

DialogBayarPiutang::~DialogBayarPiutang() = default;

void DialogBayarPiutang::setEntity(KorEntity* entity)
{
    m_line = static_cast<EntityPiutangDetail*>(entity);
    const Money* due = m_line->getAmountDue();
    m_due = double(due->rawAmount()) + m_line->getAmountPaid()->rawAmount();
    m_ui->txtInvoiceNo->setText(m_line->getInvoice()->getInvoiceNo());
    m_ui->txtDue->setMoney(minorUnits(m_due, due->getCurrency()).get());
    m_ui->txtPaid->setMoney(m_line->getAmountPaid());
    on_txtPaid_textChanged(m_ui->txtPaid->text());
    // The first figure typed replaces what stands in the box.
    m_ui->txtPaid->selectAll();
    m_ui->txtPaid->setFocus(Qt::TabFocusReason);
}

double DialogBayarPiutang::remaining() const
{
    return m_due - m_ui->txtPaid->value() * m_line->getAmountDue()->factor();
}

void DialogBayarPiutang::on_txtPaid_textChanged(const QString&)
{
    if (m_line)
        m_ui->txtRemaining->setMoney(minorUnits(remaining(), m_line->getAmountDue()->getCurrency()).get());
}

bool DialogBayarPiutang::validate()
{
    const QString missing = tr("Enter the amount paid");
    if (!m_ui->txtPaid->isValid() || m_ui->txtPaid->value() <= 0)
        addError(m_ui->txtPaid, missing);
    return !hasError();
}

bool DialogBayarPiutang::beforeAccept()
{
    return remaining() >= 0 ||
           QMessageBox::question(this, tr("Question"),
                                 tr("The amount paid is larger than the amount due. Do you want to book all of it?"),
                                 QMessageBox::Yes | QMessageBox::No, QMessageBox::No) == QMessageBox::Yes;
}

KorEntity* DialogBayarPiutang::getEntity()
{
    const QString currency = m_line->getAmountDue()->getCurrency();
    const double left = remaining();
    m_line->setAmountPaid(minorUnits(m_due - left, currency).get());
    m_line->setAmountDue(minorUnits(left, currency).get());
    return m_line;
}
