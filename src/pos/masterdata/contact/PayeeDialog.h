#pragma once

#include "app/context/EntityPool.h"
#include "pos/masterdata/contact/ContactDialog.h"

class EntityPayee;
class QComboBox;

/** Base of the entry forms of contacts that get paid: which account of the ledger, and which at a bank. */
class PayeeDialog : public ContactDialog
{
    Q_OBJECT

public:
    using ContactDialog::ContactDialog;

protected:
    template <class Form>
    void usePayeeFields(const Form& form, QLabel* id)
    {
        useContactFields(form, id);
        m_payeeFields = {form.ddlBank, form.txtNoRek, form.txtNoRekNama, form.txtNotes};
        preparePayeeFields();
    }
    void showPayee(const EntityPayee& payee);
    void readPayee(EntityPayee& payee) const;

private:
    struct Fields
    {
        QComboBox* account;
        QLineEdit* accountNo;
        QLineEdit* accountName;
        QPlainTextEdit* notes;
    };

    void preparePayeeFields();

    Fields m_payeeFields{};
    // The accounts that the form offers live as long as the form, and with it the payee that points at one.
    EntityPool m_pool;
    QList<KorEntity*> m_accounts;
};
