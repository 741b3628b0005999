#include "pos/masterdata/contact/PayeeDialog.h"

#include "kor/business/KorErrorScope.h"
#include "pos/masterdata/account/BusinessBank.h"
#include "pos/masterdata/contact/EntityPayee.h"

#include <QComboBox>
#include <QPlainTextEdit>

void PayeeDialog::preparePayeeFields()
{
    limitLength(m_payeeFields.notes, 500);

    auto* accounts = service<BusinessBank>("Bank");
    KorErrorScope errors(accounts);
    {
        const EntityPoolScope scope(m_pool);
        m_accounts = accounts->findAll(QString());
    }
    showError(errors.take());
    m_payeeFields.account->addItem(tr("none"), KorNoValue);
    for (const KorEntity* account : qAsConst(m_accounts))
        m_payeeFields.account->addItem(static_cast<const EntityBank*>(account)->getNama(), account->getId());
}

void PayeeDialog::showPayee(const EntityPayee& payee)
{
    showContact(payee);
    const int accountId = payee.getBank() ? payee.getBank()->getId() : KorNoValue;
    const int entry = m_payeeFields.account->findData(accountId);
    if (entry >= 0)
        m_payeeFields.account->setCurrentIndex(entry);
    m_payeeFields.accountNo->setText(payee.getNoRek());
    m_payeeFields.accountName->setText(payee.getNoRekAtasNama());
    m_payeeFields.notes->setPlainText(payee.getNotes());
}

void PayeeDialog::readPayee(EntityPayee& payee) const
{
    readContact(payee);
    // The entry "none" stands before the accounts.
    payee.setBank(static_cast<EntityBank*>(m_accounts.value(m_payeeFields.account->currentIndex() - 1)));
    payee.setNoRek(m_payeeFields.accountNo->text());
    payee.setNoRekAtasNama(m_payeeFields.accountName->text());
    payee.setNotes(m_payeeFields.notes->toPlainText());
}
