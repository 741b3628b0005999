#pragma once

#include "kor/entity/KorEntity.h"

#include <QDialog>
#include <QLineEdit>
#include <QMap>
#include <QPointer>

#include <functional>

class KorNumberEdit;
class QDialogButtonBox;

/**
 * Base of every entry form. A form reports what is wrong field by field, and all of it is shown in one box; a
 * confirmed form closes only when it is valid and, where a saver is set, when it has been saved.
 *
 * The form finds the number boxes that can be typed in by itself: what a box cannot store is an error beside those that
 * validate() tells, and what would be stored otherwise than typed is asked about, once for all boxes of a save.
 */
class KorDialog : public QDialog
{
    Q_OBJECT

public:
    explicit KorDialog(QWidget* parent = nullptr);
    ~KorDialog() override;

    /** Reports errors through addError; true when the form is fit to be taken. */
    virtual bool validate() = 0;
    /** The record as the form shows it, made on the first call where none was handed in; it dies with the dialog. */
    virtual KorEntity* getEntity() = 0;
    /** Takes the record for the dialog's own and shows it. */
    virtual void setEntity(KorEntity* entity) = 0;
    /** Runs after a successful validation; false keeps the dialog open, as the user left it. */
    virtual bool beforeAccept();
    /** Both return true only for an accepted dialog that still holds errors; callers look at hasError() instead. */
    virtual bool execWith(KorEntity* entity);
    virtual bool execWithKey(const QString& key);
    virtual int setKey(const QString& key);

    /** What saves the record when the form is confirmed; it shows its own failure and returns false for it. */
    void setSaver(std::function<bool()> saver) { m_saver = std::move(saver); }
    void addError(QWidget* widget, const QString& message);
    [[nodiscard]] bool hasError() const { return !m_errorFields.isEmpty(); }
    [[nodiscard]] QStringList errorsOf(QWidget* widget) const { return m_errors.value(widget); }

    void done(int result) override;
    void accept() override;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void showEvent(QShowEvent* event) override;

    /** The owned record of the dialog: replaced by setEntity, deleted with the dialog. */
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

    // The rules that recur in the forms. Each reports on its field and returns whether the field passed.
    bool require(QLineEdit* field, const QString& message);
    bool requireText(QWidget* field, const QString& text, const QString& message);
    /** The found record counts as a clash unless it is the one being edited. */
    bool requireUnused(QWidget* field, const KorEntity* found, const QString& message);
    /** Adds the faults of the number boxes that have no error yet; false when a box has one. done() calls it anyway. */
    bool checkNumbers();
    /** Required and not taken by another record; a look-up that fails is told in a box of its own. */
    template <class Service, class Find>
    bool requireCode(QLineEdit* field, Service* service, Find find, const QString& missing, const QString& taken)
    {
        if (!require(field, missing))
            return false;
        const KorEntity* found = find(service, field->text());
        showError(service->takeErrors());
        return requireUnused(field, found, taken);
    }
    /** False for an empty text, which shows nothing. */
    bool showError(const QString& text);
    /** Buttons that a finger hits, in the forms of a till. */
    static void makeTouchable(const QDialogButtonBox* buttons);
    /** Focus once the window is shown, as a field that is not yet visible cannot take it. */
    void focusLater(QWidget* field);

private:
    [[nodiscard]] QString composeErrors() const;
    [[nodiscard]] QList<KorNumberEdit*> numberBoxes() const;
    bool settleDoubts();

    QPointer<KorEntity> m_entity;
    std::function<bool()> m_saver;
    QList<QWidget*> m_errorFields;
    QMap<QWidget*, QStringList> m_errors;
    QSize m_sizeAtFirst;
};
