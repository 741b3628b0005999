#pragma once

#include "kor/entity/KorEntity.h"
#include "kor/widgets/KorBoundBox.h"

#include <QDialog>
#include <QLineEdit>
#include <QMap>
#include <QPointer>

#include <functional>

class KorNumberEdit;
class QDialogButtonBox;

/**
 * Base of every entry form. validate() reports errors field by field, and all of them are shown in one box. OK closes
 * the form only if it is valid and the saver, if set, has saved the record.
 *
 * The form checks its editable number boxes itself. A number that cannot be stored is an error like those of
 * validate(); a number that would be stored differently from what was typed is confirmed once for all boxes.
 *
 * A form says once, with edits(), which box holds which field of its record; getEntity() and setEntity() follow from
 * it. A form that has more to do overrides them and calls these first.
 */
class KorDialog : public QDialog
{
    Q_OBJECT

public:
    explicit KorDialog(QWidget* parent = nullptr);
    ~KorDialog() override;

    /** Reports errors with addError(); true if the form can be saved. */
    virtual bool validate() = 0;
    /**
     * The record as the form shows it, created on first use if none was set; deleted with the dialog. Null in a form
     * that edits none.
     */
    virtual KorEntity* getEntity();
    /** Takes ownership of the record and shows it. */
    virtual void setEntity(KorEntity* entity);
    /** Called after a successful validation; false keeps the dialog open with its entries. */
    virtual bool beforeAccept();
    /** Both return true only for an accepted dialog with errors left; callers use hasError() instead. */
    virtual bool execWith(KorEntity* entity);
    virtual bool execWithKey(const QString& key);
    virtual int setKey(const QString& key);

    /** Saves the record when the form is confirmed; it shows its own error and returns false on failure. */
    void setSaver(std::function<bool()> saver) { m_saver = std::move(saver); }
    void addError(QWidget* widget, const QString& message);
    [[nodiscard]] bool hasError() const { return !m_errorFields.isEmpty(); }
    [[nodiscard]] QStringList errorsOf(QWidget* widget) const { return m_errors.value(widget); }

    void done(int result) override;
    void accept() override;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void showEvent(QShowEvent* event) override;

    /** A box, which is a widget or a RecordField-like object, and the field that it edits; see KorBoundBox. */
    struct Bound
    {
        QObject* box;
        const char* field;
    };
    /**
     * The form edits records of this class with these boxes, which are shown and read in this order. Call it in the
     * constructor; a base class and its form may each name boxes of the same kind of record.
     */
    template <class Entity>
    void edits(const QList<Bound>& boxes)
    {
        m_make = []() -> KorEntity* { return new Entity; };
        for (const Bound& bound : boxes)
            m_boxes.append(KorBoundBox(bound.box, Entity::staticMetaObject, bound.field));
    }

    /** The dialog's record: replaced by setEntity(), deleted with the dialog. */
    template <class Entity>
    [[nodiscard]] Entity* held() const
    {
        return static_cast<Entity*>(m_entity.data());
    }
    template <class Entity>
    Entity* heldOrNew()
    {
        if (!m_entity)
            m_entity = new Entity;
        return held<Entity>();
    }
    void hold(KorEntity* entity) { m_entity = entity; }

    // Common checks. Each reports an error on its field and returns whether the field passed.
    bool require(QLineEdit* field, const QString& message);
    bool requireText(QWidget* field, const QString& text, const QString& message);
    /** Fails if a record was found, unless it is the one being edited. */
    bool requireUnused(QWidget* field, const KorEntity* found, const QString& message);
    /** Adds the errors of number boxes that have none yet; false if any box has one. done() calls it anyway. */
    bool checkNumbers();
    /** Not empty and not used by another record; an error while looking it up is shown in its own box. */
    template <class Service, class Find>
    bool requireCode(QLineEdit* field, Service* service, Find find, const QString& missing, const QString& taken)
    {
        if (!require(field, missing))
            return false;
        const KorEntity* found = find(service, field->text());
        showError(service->takeErrors());
        return requireUnused(field, found, taken);
    }
    /** Shows an error box; false, and no box, for an empty text. */
    bool showError(const QString& text);
    /** Makes the buttons large enough for touch, for till forms. */
    static void makeTouchable(const QDialogButtonBox* buttons);
    /** Sets the focus once the window is visible; an invisible field cannot take it. */
    void focusLater(QWidget* field);

private:
    [[nodiscard]] QString composeErrors() const;
    [[nodiscard]] QList<KorNumberEdit*> numberBoxes() const;
    bool settleDoubts();

    QPointer<KorEntity> m_entity;
    KorEntity* (*m_make)() = nullptr;
    QList<KorBoundBox> m_boxes;
    std::function<bool()> m_saver;
    QList<QWidget*> m_errorFields;
    QMap<QWidget*, QStringList> m_errors;
    QSize m_sizeAtFirst;
};
