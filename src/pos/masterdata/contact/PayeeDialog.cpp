#include "pos/masterdata/contact/PayeeDialog.h"

#include "kor/business/KorErrorScope.h"
#include "pos/masterdata/account/BusinessBank.h"
#include "pos/masterdata/contact/EntityPayee.h"

#include <QComboBox>

void PayeeDialog::offerAccounts()
{
    auto* accounts = service<BusinessBank>("Bank");
    KorErrorScope errors(accounts);
    {
        const EntityPoolScope scope(m_pool);
        m_accounts = accounts->findAll(QString());
    }
    showError(errors.take());
    m_account->addItem(tr("none"), KorNoValue);
    for (const KorEntity* account : qAsConst(m_accounts))
        m_account->addItem(static_cast<const EntityBank*>(account)->getNama(), account->getId());
}

KorEntity* PayeeDialog::getEntity()
{
    ContactDialog::getEntity();
    auto* payee = held<EntityPayee>();
    // The first entry of the list is "none".
    payee->setBank(static_cast<EntityBank*>(m_accounts.value(m_account->currentIndex() - 1)));
    return payee;
}

void PayeeDialog::setEntity(KorEntity* entity)
{
    ContactDialog::setEntity(entity);
    const EntityBank* account = held<EntityPayee>()->getBank();
    const int entry = m_account->findData(account ? account->getId() : KorNoValue);
    if (entry >= 0)
        m_account->setCurrentIndex(entry);
}
