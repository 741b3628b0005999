#pragma once

#include "kor/business/KorServiceDirectory.h"
#include "kor/widgets/KorDialog.h"

class QLabel;
class QPlainTextEdit;

/** Limits the length of a multi-line text to the width of its column; a line edit can do that by itself. */
void limitLength(QPlainTextEdit* field, int maximum);

/** Base of the entry forms of contacts: their common fields and checks. */
class ContactDialog : public KorDialog
{
    Q_OBJECT

public:
    using KorDialog::KorDialog;

protected:
    /** The error texts for fields that are empty, already used or wrong. */
    struct Messages
    {
        QString noCode;
        QString codeTaken;
        QString noName;
        QString noAddress;
        QString noPhone;
        QString wrongEmail;
    };

    /** Call it after setupUi(); all contact forms use the same names for these fields. */
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
