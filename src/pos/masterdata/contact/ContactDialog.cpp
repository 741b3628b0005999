#include "pos/masterdata/contact/ContactDialog.h"

#include "pos/masterdata/contact/EmailAddress.h"

#include <QPlainTextEdit>

void limitLength(QPlainTextEdit* field, int maximum)
{
    QObject::connect(field, &QPlainTextEdit::textChanged, field, [field, maximum] {
        const int surplus = field->toPlainText().size() - maximum;
        if (surplus <= 0)
            return;
        // Remove what was just typed or pasted: it is before the cursor.
        QTextCursor cursor = field->textCursor();
        cursor.movePosition(QTextCursor::PreviousCharacter, QTextCursor::KeepAnchor, surplus);
        cursor.removeSelectedText();
    });
}

void ContactDialog::prepareContactFields()
{
    limitLength(m_fields.address, 500);
    focusLater(m_fields.code);
}

void ContactDialog::validateDetails(const Messages& messages)
{
    require(m_fields.name, messages.noName);
    requireText(m_fields.address, m_fields.address->toPlainText(), messages.noAddress);
    require(m_fields.phone, messages.noPhone);
    if (!m_fields.email->text().isEmpty() && !isEmailAddress(m_fields.email->text()))
        addError(m_fields.email, messages.wrongEmail);
}
