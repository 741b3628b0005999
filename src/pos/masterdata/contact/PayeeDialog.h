#pragma once

#include "app/context/EntityPool.h"
#include "pos/masterdata/contact/ContactDialog.h"

class QComboBox;

/** Base of the entry forms of contacts that get paid: which account of the ledger, and which at a bank. */
class PayeeDialog : public ContactDialog
{
    Q_OBJECT

public:
    using ContactDialog::ContactDialog;

    KorEntity* getEntity() override;
    void setEntity(KorEntity* entity) override;

protected:
    template <class Payee, class Form>
    void usePayeeFields(const Form& form, QLabel* id)
    {
        useContactFields<Payee>(form, id);
        edits<Payee>({{form.txtNoRek, "NoRek"}, {form.txtNoRekNama, "NoRekAtasNama"}, {form.txtNotes, "Notes"}});
        limitLength(form.txtNotes, 500);
        m_account = form.ddlBank;
        offerAccounts();
    }

private:
    void offerAccounts();

    QComboBox* m_account = nullptr;
    // The accounts that the form offers live as long as the form, and with it the payee that points at one.
    EntityPool m_pool;
    QList<KorEntity*> m_accounts;
};
