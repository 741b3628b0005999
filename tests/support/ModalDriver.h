#pragma once

#include <QDialog>
#include <QMessageBox>
#include <QPointer>

#include <functional>

/** One message box as the user saw it. */
struct SeenBox
{
    QString title;
    QString text;
    QMessageBox::Icon icon;
    /** What stands behind "Show Details...". */
    QString details;
};

/**
 * Stands in for the person in front of modal windows while it lives: presses buttons of message boxes and works on
 * dialogs in the order that the test laid down, and keeps what was shown. What the test did not foresee is answered
 * with the default (a box) or cancelled (a dialog), and can be looked up afterwards.
 */
class ModalDriver : public QObject
{
    Q_OBJECT

public:
    explicit ModalDriver(QObject* parent = nullptr);

    /** The next message box gets this button; boxes without an answer get their default or only button. */
    void answer(QMessageBox::StandardButton button) { m_answers.append(button); }
    /** The next dialog of this class is handed to the function, once; it has to end the dialog, or a later step has. */
    template <class Dialog>
    void expect(std::function<void(Dialog*)> work)
    {
        m_steps.append({&Dialog::staticMetaObject, [work](QDialog* dialog) { work(static_cast<Dialog*>(dialog)); }});
    }

    [[nodiscard]] const QList<SeenBox>& boxes() const { return m_boxes; }
    [[nodiscard]] QStringList texts() const;
    [[nodiscard]] QString lastText() const { return m_boxes.isEmpty() ? QString() : m_boxes.last().text; }
    [[nodiscard]] QString lastTitle() const { return m_boxes.isEmpty() ? QString() : m_boxes.last().title; }
    /** True when every step and answer that the test laid down was used and no dialog came unforeseen. */
    [[nodiscard]] bool finished() const;
    [[nodiscard]] const QStringList& surprises() const { return m_surprises; }
    void clear();

private:
    struct Step
    {
        const QMetaObject* type;
        std::function<void(QDialog*)> work;
    };

    void look();
    void press(QMessageBox* box);

    QList<QMessageBox::StandardButton> m_answers;
    QList<Step> m_steps;
    QList<SeenBox> m_boxes;
    QStringList m_surprises;
    QPointer<QDialog> m_inHand;
    QPointer<QDialog> m_workedOn;
};
