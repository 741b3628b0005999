#include "zavel/commission/DialogSetPercentage.h"

#include "zavel/commission/CommissionAmount.h"
#include "zavel/commission/EntityKomisiAgenDetail.h"

#include "ui_DialogSetPercentage.h"

DialogSetPercentage::DialogSetPercentage(QWidget* parent)
    : KorDialog(parent), m_ui(std::make_unique<Ui::DialogSetPercentage>())
{
    m_ui->setupUi(this);
    makeTouchable(m_ui->buttonBox);
}

DialogSetPercentage::~DialogSetPercentage() = default;

void DialogSetPercentage::setEntity(KorEntity* entity)
{
    m_line = static_cast<EntityKomisiAgenDetail*>(entity);
    m_ui->txtInvoiceNo->setText(m_line->getInvoice()->getInvoiceNo());
    m_ui->txtTotal->setMoney(m_line->getInvoice()->getGrandTotal());
    m_ui->txtPerc->setValue(m_line->getCommisionPerc());
    m_ui->txtCommision->setMoney(m_line->getCommision());
    // Typing replaces the old value.
    m_ui->txtPerc->selectAll();
    m_ui->txtPerc->setFocus(Qt::TabFocusReason);
}

void DialogSetPercentage::on_txtPerc_textChanged(const QString&)
{
    if (m_line)
        m_ui->txtCommision->setMoney(commissionOf(*m_line->getInvoice(), m_ui->txtPerc->value()).get());
}

bool DialogSetPercentage::validate()
{
    const double percent = m_ui->txtPerc->value();
    if (!m_ui->txtPerc->isValid() || percent < 0 || percent > 100)
        addError(m_ui->txtPerc, tr("Enter a valid value between 0-100"));
    return !hasError();
}

KorEntity* DialogSetPercentage::getEntity()
{
    setCommission(m_line, m_ui->txtPerc->value());
    return m_line;
}
