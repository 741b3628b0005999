#include "pos/masterdata/account/AccountField.h"

#include "kor/business/KorServiceDirectory.h"
#include "kor/widgets/KorDialog.h"
#include "kor/widgets/KorErrorBox.h"

#include <QLabel>

AccountField::AccountField(QLineEdit* code, QLabel* name, KorDialog* form)
    : QObject(form), m_code(code), m_name(name), m_form(form),
      m_box(new BankTextBox(code, service<BusinessBank>("Bank")))
{
    connect(m_box, &KorTextBoxExtender::onItemSelected, this, [this] { show(m_box->selectedItem()); });
    connect(m_code, &QLineEdit::editingFinished, this, [this] {
        // What fails here is told when the form is confirmed.
        const QString failure = lookUp();
        Q_UNUSED(failure)
    });
}

void AccountField::show(EntityBank* account)
{
    m_account = account;
    m_code->setText(account ? account->getKode() : QString());
    m_name->setText(account ? account->getNama() : QString());
    emit changed();
}

void AccountField::showCode(const QString& code)
{
    m_account = nullptr;
    m_code->setText(code);
    const QString failure = lookUp();
    if (!failure.isEmpty())
        KorErrorBox::critical(m_form, KorDialog::tr("Error"), failure);
}

QString AccountField::lookUp()
{
    const QString code = m_code->text().trimmed();
    if (m_account && m_account->getKode().compare(code, Qt::CaseInsensitive) == 0)
        return {};
    const EntityPoolScope scope(m_found);
    auto* accounts = service<BusinessBank>("Bank");
    accounts->clearErrors();
    m_account = code.isEmpty() ? nullptr : accounts->findByCode(code);
    m_name->setText(m_account ? m_account->getNama() : QString());
    m_couldAsk = !accounts->hasError();
    QString failure = accounts->takeErrors();
    emit changed();
    return failure;
}

bool AccountField::check(const QString& missing, const QString& unknown)
{
    if (m_code->text().trimmed().isEmpty()) {
        m_account = nullptr;
        m_couldAsk = true;
        if (missing.isEmpty())
            return true;
        m_form->addError(m_code, missing);
        return false;
    }
    // Asked anew, as somebody may have deleted the account meanwhile.
    m_account = nullptr;
    const QString failure = lookUp();
    if (!failure.isEmpty())
        m_form->addError(m_code, failure.trimmed());
    else if (!m_account)
        m_form->addError(m_code, unknown);
    return m_account;
}
