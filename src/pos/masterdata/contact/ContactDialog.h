#pragma once

#include "kor/business/KorServiceDirectory.h"
#include "kor/widgets/KorDialog.h"

class QLabel;
class QPlainTextEdit;

/** Keeps a text of several lines within what its column takes, as a line edit does by itself. */
void limitLength(QPlainTextEdit* field, int maximum);

/** Base of the contacts' entry forms: the fields that all of them have, and the rules for these. */
class ContactDialog : public KorDialog
{
    Q_OBJECT

public:
    using KorDialog::KorDialog;

protected:
    /** What the form says about a field that is empty, taken or wrong. */
    struct Messages
    {
        QString noCode;
        QString codeTaken;
        QString noName;
        QString noAddress;
        QString noPhone;
        QString wrongEmail;
    };

    /** Takes the fields of a form that has been set up; all of the contacts' forms give them the same names. */
    template <class Contact, class Form>
    void useContactFields(const Form& form, QLabel* id)
    {
        m_fields = {form.txtKode, form.txtNama, form.txtAlamat, form.txtTelp, form.txtEmail};
        edits<Contact>({{id, "Id"},
                        {form.txtKode, "Kode"},
                        {form.txtNama, "Nama"},
                        {form.txtAlamat, "Alamat"},
                        {form.txtTelp, "Telp"},
                        {form.txtEmail, "Email"}});
        prepareContactFields();
    }
    template <class Service>
    void validateContact(const QString& serviceName, const Messages& messages)
    {
        requireCode(
            m_fields.code, service<Service>(serviceName),
            [](Service* contacts, const QString& code) { return contacts->findByCode(code); }, messages.noCode,
            messages.codeTaken);
        validateDetails(messages);
    }

private:
    struct Fields
    {
        QLineEdit* code;
        QLineEdit* name;
        QPlainTextEdit* address;
        QLineEdit* phone;
        QLineEdit* email;
    };

    void prepareContactFields();
    void validateDetails(const Messages& messages);

    Fields m_fields{};
};
