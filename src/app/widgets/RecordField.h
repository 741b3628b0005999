#pragma once

#include "app/context/EntityPool.h"
#include "app/widgets/AppEntityTextBox.h"

class KorDialog;

/**
 * A field for a record, named by its code, which is typed or chosen from a list. The record's name is shown beside it.
 * The rules are the same in all forms:
 *
 * - Case and surrounding blanks of a code are ignored. After a choice the code is written as in the record.
 * - Enter looks up a code that was not looked up yet; otherwise Enter belongs to the form.
 * - The name disappears as soon as another code is typed.
 * - When the form is confirmed, the code is read again, so that a record that was deleted meanwhile is reported. If it
 *   is still the same record, the field keeps the object that it showed: what the user saw is saved.
 * - A failed read is reported at once after Enter or a choice, otherwise with the errors of the confirmed form. It is
 *   never treated as an unknown code.
 * - A disabled or read-only field keeps its record.
 *
 * The widgets are borrowed. A record that was read lives as long as the field, unless keepIn() was called.
 */
class RecordFieldBase : public QObject
{
    Q_OBJECT
    Q_PROPERTY(KorEntity* entity READ entity WRITE show NOTIFY changed USER true)

public:
    [[nodiscard]] AppLookupBox* box() const { return m_box; }
    /** The record for the code in the field; null if the code was not looked up yet or is unknown. */
    [[nodiscard]] KorEntity* entity() const { return isNamed() ? m_record.data() : nullptr; }
    /** The id of that record, or KorNoValue. */
    [[nodiscard]] int id() const;
    /** Shows this record, which is borrowed; null clears the field. */
    void show(KorEntity* record);
    /** Shows the record with this code; a failed read is shown in a message box. */
    void showCode(const QString& code);
    /**
     * Reads the code again and adds an error to the form if the field is empty, the code is unknown or the read failed;
     * then returns false. An empty field is allowed if the text "missing" is empty.
     */
    bool check(const QString& missing, const QString& unknown);
    /** False if the last read failed. */
    [[nodiscard]] bool couldAsk() const { return m_couldAsk; }
    /**
     * The id for filtering a list: that of the record, KorNoValue (no filter) for an empty field, or 0, which no record
     * has, for an unknown code. A failed read adds an error to the list's service.
     */
    [[nodiscard]] int filterId(KorBusinessLogic* list);
    /** Makes the field read-only and grey. */
    void freeze();
    /** Also looks the code up when the field loses the focus; for forms that show details of the record. */
    void lookUpWhenLeft();
    /** Reads records into this pool, which must outlive all users of the records. */
    void keepIn(EntityPool& pool) { m_pool = &pool; }

public slots:
    /** Writes the code as it is in the record, for forms that also want this after the focus was lost. */
    void writeCode();

signals:
    /** The record of the field has changed, also to none; emitted while the user types, too. */
    void changed();
    /** The user has chosen a record, in the list, with Enter or by leaving the field, or has left it without one. */
    void chosen();
    /** The code could not be read when the field was left; for forms that load more data with the record. */
    void unread(const QString& failure);

protected:
    using Reader = std::function<KorEntity*(const QString& code)>;

    /** "name" is a line edit or label for the record's name. It and the form may be null; check() needs the form. */
    RecordFieldBase(AppLookupBox* box, Reader reader, QWidget* name, KorDialog* form);

private:
    [[nodiscard]] QString code() const;
    [[nodiscard]] bool isNamed() const;
    /** Looks up the code in the field if it is not the current record's; returns the error text of a failed read. */
    [[nodiscard]] QString lookUp();
    /** The same, but always reads again. */
    [[nodiscard]] QString lookUpAgain();
    /** False if the code is unknown. Shows a failed read in a message box. */
    bool choose();
    void left();
    [[nodiscard]] QString read(EntityPool& pool, KorEntity** found);
    void take(KorEntity* record);
    void tellChange();

    AppLookupBox* m_box;
    Reader m_reader;
    QPointer<QWidget> m_name;
    KorDialog* m_form;
    EntityPool m_own;
    EntityPool* m_pool = &m_own;
    QPointer<KorEntity> m_record;
    // The record at the last changed().
    QPointer<KorEntity> m_changedTo;
    QPointer<KorEntity> m_chosen;
    // The code of the last completed lookup, whether a record was found or not.
    QString m_asked;
    bool m_couldAsk = true;
};

/**
 * A field for the code of this entity; the service of the lookup box has findByCode(code). Declare it in headers as
 * template <typename Entity>: with "class", lupdate would assign the following texts to a class Entity.
 */
template <class Entity>
class RecordField : public RecordFieldBase
{
public:
    template <class Service>
    RecordField(AppEntityTextBox<Entity, Service>* box, QWidget* name = nullptr, KorDialog* form = nullptr)
        : RecordFieldBase(
              box, [box](const QString& code) { return box->service()->findByCode(code); }, name, form)
    {}

    /** entity(), cast to its type. */
    [[nodiscard]] Entity* record() const { return static_cast<Entity*>(entity()); }
};
