#pragma once

#include "app/context/EntityPool.h"
#include "pos/masterdata/contact/ContactDialog.h"

class QComboBox;

/** Base of the entry forms of payees: their ledger account and bank account. */
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
    // The offered accounts live as long as the form and its payee, which points to one.
    EntityPool m_pool;
    QList<KorEntity*> m_accounts;
};
