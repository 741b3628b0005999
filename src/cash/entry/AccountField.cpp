#include "cash/entry/AccountField.h"

#include "kor/business/KorServiceDirectory.h"
#include "kor/widgets/KorDialog.h"
#include "masterdata/bank/BankTextBox.h"

#include <QLabel>

AccountField::AccountField(QLineEdit* code, QLabel* name, QObject* parent)
    : QObject(parent), m_code(code), m_name(name), m_box(new BankTextBox(code, service<BusinessBank>("Bank")))
{
    // The name of another account must not stand beside a code that is being typed.
    connect(m_code, &QLineEdit::textEdited, m_name, [this] { m_name->clear(); });
    connect(m_code, &QLineEdit::editingFinished, this, [this] {
        if (m_name->text().isEmpty())
            show(m_code->text().trimmed());
    });
}

void AccountField::showPicked() { show(m_box->selectedItem()); }

void AccountField::show(const EntityBank* account)
{
    m_name->setText(account ? account->getNama() : QString());
    if (account)
        m_code->setText(account->getKode());
}

void AccountField::show(const QString& code)
{
    m_code->setText(code);
    show(code.isEmpty() ? nullptr : find(code));
    // A database that does not answer is told by whoever saves or searches.
    service<BusinessBank>("Bank")->clearErrors();
}

EntityBank* AccountField::require(KorDialog& form, const QString& missing)
{
    m_box->preventSuggest();
    const QString code = m_code->text().trimmed();
    if (code.isEmpty()) {
        form.addError(m_code, missing);
        return nullptr;
    }
    EntityBank* account = find(code);
    auto* accounts = service<BusinessBank>("Bank");
    if (accounts->hasError())
        form.addError(m_code, accounts->takeErrors().trimmed());
    else if (!account)
        form.addError(m_code, tr("There is no account with the code: %1").arg(code));
    show(account);
    return account;
}

EntityBank* AccountField::find(const QString& code)
{
    const EntityPoolScope scope(m_found);
    auto* accounts = service<BusinessBank>("Bank");
    accounts->clearErrors();
    return accounts->findByCode(code);
}
