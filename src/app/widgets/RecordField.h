#pragma once

#include "app/context/EntityPool.h"
#include "app/widgets/AppEntityTextBox.h"

class KorDialog;

/**
 * A box in which a record is named by its code, typed or picked from the list, with the record's name beside it. The
 * rules are the same in all forms:
 *
 * - Letter case and blanks around a code do not matter. A choice writes the code as the record does.
 * - Enter takes the code as long as nothing was made of it; after that Enter is the form's own.
 * - The name beside a code goes as soon as another one is typed.
 * - A confirmed form reads the code again, so that a record that somebody deleted meanwhile is told and not saved.
 *   Where it is still the same record, the one that the user looked at stays: what is saved is what was seen.
 * - A failure to read is told: after Enter and after a choice at once, when the form is confirmed with its other
 *   errors. It is never taken for an unknown code.
 * - A box that cannot be typed in keeps what it names.
 *
 * The widgets are borrowed. A record that was read lives as long as the field, unless keepIn() says otherwise.
 */
class RecordFieldBase : public QObject
{
    Q_OBJECT
    Q_PROPERTY(KorEntity* entity READ entity WRITE show NOTIFY changed USER true)

public:
    [[nodiscard]] AppLookupBox* box() const { return m_box; }
    /** The record that the box names, as far as it was looked up; null without one. */
    [[nodiscard]] KorEntity* entity() const { return isNamed() ? m_record.data() : nullptr; }
    /** The id of the record that the box names, KorNoValue for none. */
    [[nodiscard]] int id() const;
    /** Shows this record, which is borrowed; null empties the field. */
    void show(KorEntity* record);
    /** Shows the record with this code; a failure to read is told in a box. */
    void showCode(const QString& code);
    /**
     * Reads the code again and reports an empty box and an unknown code on the form; false for both, and when the
     * records cannot be read. The box may be empty where there is no text for it.
     */
    bool check(const QString& missing, const QString& unknown);
    /** False when the records could not be asked at the last look. */
    [[nodiscard]] bool couldAsk() const { return m_couldAsk; }
    /**
     * What a list is narrowed to by this field: the id of the record, KorNoValue for an empty box, and 0, which no
     * record has, for a code that nobody has. A failure to read becomes an error of the list's service.
     */
    [[nodiscard]] int filterId(KorBusinessLogic* list);
    /** A record that is to stay as it is. */
    void freeze();
    /** For forms that tell something about the record at once: a typed code counts as soon as the box is left. */
    void lookUpWhenLeft();
    /** Reads records into this pool, which has to outlive whatever shows them. */
    void keepIn(EntityPool& pool) { m_pool = &pool; }

public slots:
    /** Writes the code as the record does; for forms that want it also after a code was only left. */
    void writeCode();

signals:
    /** The box names another record, or none; told also while a code is typed. */
    void changed();
    /** The user has chosen a record from the list, with Enter or by going on, or has gone on without one. */
    void chosen();
    /** The box was left with a code that could not be read: for forms that read on from the record at once. */
    void unread(const QString& failure);

protected:
    using Reader = std::function<KorEntity*(const QString& code)>;

    /** The name, a line edit or a label, and the form may be missing; without a form nothing is checked. */
    RecordFieldBase(AppLookupBox* box, Reader reader, QWidget* name, KorDialog* form);

private:
    [[nodiscard]] QString code() const;
    [[nodiscard]] bool isNamed() const;
    /** Takes the record of the code that stands in the box; a failure to read is what comes back. */
    [[nodiscard]] QString lookUp();
    /** As lookUp(), but reads again also what is known. */
    [[nodiscard]] QString lookUpAgain();
    /** False when the code is unknown; a failure is told here. */
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
    // What the form heard of last.
    QPointer<KorEntity> m_changedTo;
    QPointer<KorEntity> m_chosen;
    // What was made something of, be it a record or the knowledge that there is none.
    QString m_asked;
    bool m_couldAsk = true;
};

/**
 * A box for the code of such an entity; the service behind the lookup box offers findByCode(code). Headers declare it
 * ahead as template <typename Entity>: behind "class" lupdate would take the texts for those of a class Entity.
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

    /** As entity(), in its own type. */
    [[nodiscard]] Entity* record() const { return static_cast<Entity*>(entity()); }
};
