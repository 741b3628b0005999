#include "app/widgets/RecordField.h"

#include "kor/business/KorBusinessLogic.h"
#include "kor/business/KorErrorScope.h"
#include "kor/widgets/KorDialog.h"
#include "kor/widgets/KorErrorBox.h"

#include <QApplication>

RecordFieldBase::RecordFieldBase(AppLookupBox* box, Reader reader, QWidget* name, KorDialog* form)
    : QObject(box->editor()), m_box(box), m_reader(std::move(reader)), m_name(name), m_form(form)
{
    connect(m_box, &KorTextBoxExtender::onItemSelected, this, &RecordFieldBase::choose);
    m_box->setTaker([this] { return choose(); }, [this] { return code() == m_asked; });
    connect(m_box->editor(), &QLineEdit::textChanged, this, &RecordFieldBase::tellChange);
}

int RecordFieldBase::id() const { return isNamed() ? m_record->getId() : KorNoValue; }

QString RecordFieldBase::code() const { return m_box->editor()->text().trimmed(); }

bool RecordFieldBase::isNamed() const
{
    return m_record && m_box->codeOf(*m_record).compare(code(), Qt::CaseInsensitive) == 0;
}

void RecordFieldBase::freeze()
{
    m_box->editor()->setEnabled(false);
    if (m_name)
        m_name->setEnabled(false);
}

void RecordFieldBase::lookUpWhenLeft()
{
    connect(m_box->editor(), &QLineEdit::editingFinished, this, &RecordFieldBase::left);
}

// --- the record ----------------------------------------------------------------------------------------------------

void RecordFieldBase::show(KorEntity* record)
{
    m_chosen = record;
    // Set the record before the text, so that changed() is not emitted for an empty field.
    m_record = record;
    m_box->editor()->setText(record ? m_box->codeOf(*record) : QString());
    take(record);
}

void RecordFieldBase::writeCode()
{
    if (!isNamed())
        return;
    m_box->editor()->setText(m_box->codeOf(*m_record));
    m_asked = code();
}

void RecordFieldBase::showCode(const QString& code)
{
    m_box->editor()->setText(code);
    KorErrorBox::tell(m_box->editor()->window(), lookUpAgain());
    m_chosen = entity();
}

void RecordFieldBase::take(KorEntity* record)
{
    m_record = record;
    m_asked = code();
    // Cancel a pending search: a list that opens now would take the keys of the next field.
    m_box->preventSuggest();
    tellChange();
}

void RecordFieldBase::tellChange()
{
    KorEntity* now = entity();
    if (now == m_changedTo)
        return;
    m_changedTo = now;
    if (m_name)
        m_name->setProperty("text", now ? m_box->nameOf(*now) : QString());
    emit changed();
}

// --- reading -------------------------------------------------------------------------------------------------------

QString RecordFieldBase::read(EntityPool& pool, KorEntity** found)
{
    const EntityPoolScope scope(pool);
    KorErrorScope errors(m_box->business());
    *found = m_reader(code());
    m_couldAsk = !errors.failed();
    return errors.take();
}

QString RecordFieldBase::lookUp() { return isNamed() ? QString() : lookUpAgain(); }

QString RecordFieldBase::lookUpAgain()
{
    m_couldAsk = true;
    KorEntity* found = nullptr;
    QString failure;
    if (isNamed()) {
        EntityPool passing;
        failure = read(passing, &found);
        if (!failure.isEmpty() || (found && found->getId() == m_record->getId()))
            return failure;
    }
    if (!code().isEmpty())
        failure = read(*m_pool, &found);
    if (failure.isEmpty())
        take(found);
    return failure;
}

bool RecordFieldBase::choose()
{
    const QString failure = lookUp();
    if (KorErrorBox::tell(m_box->editor()->window(), failure))
        return true;
    // The "No result" row can be chosen, too.
    if (!isNamed())
        return false;
    writeCode();
    m_chosen = m_record;
    emit chosen();
    return true;
}

void RecordFieldBase::left()
{
    // An opening list of suggestions also takes the focus; the code may not be complete yet.
    if (QApplication::activePopupWidget())
        return;
    // If the form does not connect unread(), check() reports the error when the form is confirmed.
    const QString failure = lookUp();
    if (!failure.isEmpty()) {
        emit unread(failure);
    } else if (entity() != m_chosen) {
        m_chosen = entity();
        emit chosen();
    }
}

// --- validation and filters ----------------------------------------------------------------------------------------

bool RecordFieldBase::check(const QString& missing, const QString& unknown)
{
    QLineEdit* editor = m_box->editor();
    // The user has finished typing, so no list of suggestions must open.
    m_box->preventSuggest();
    if (isNamed() && (!editor->isEnabled() || editor->isReadOnly()))
        return true;
    const QString failure = lookUpAgain();
    if (!failure.isEmpty())
        m_form->addError(editor, failure.trimmed());
    else if (code().isEmpty() && missing.isEmpty())
        return true;
    else if (!isNamed())
        m_form->addError(editor, code().isEmpty() ? missing : unknown);
    return failure.isEmpty() && isNamed();
}

int RecordFieldBase::filterId(KorBusinessLogic* list)
{
    const QString failure = lookUpAgain();
    if (!failure.isEmpty())
        list->addError("findByCode", failure.trimmed());
    m_box->preventSuggest();
    if (code().isEmpty())
        return KorNoValue;
    return isNamed() ? m_record->getId() : 0;
}
