#pragma once

#include <QDialog>
#include <QMessageBox>
#include <QPointer>

#include <functional>

/** A message box that was shown. */
struct SeenBox
{
    QString title;
    QString text;
    QMessageBox::Icon icon;
    /** The text of "Show Details...". */
    QString details;
};

/**
 * Answers modal windows while it exists: presses buttons of message boxes and works on dialogs in the order that the
 * test sets, and records what was shown. Unexpected boxes get their default button, unexpected dialogs are cancelled;
 * both are recorded.
 */
class ModalDriver : public QObject
{
    Q_OBJECT

public:
    explicit ModalDriver(QObject* parent = nullptr);

    /** The next message box gets this button; boxes without an answer get their default or only button. */
    void answer(QMessageBox::StandardButton button) { m_answers.append(button); }
    /**
     * Passes the next dialog of this class to the function, once. The function or a later step must close the dialog.
     */
    template <class Dialog>
    void expect(std::function<void(Dialog*)> work)
    {
        m_steps.append({&Dialog::staticMetaObject, [work](QDialog* dialog) { work(static_cast<Dialog*>(dialog)); }});
    }

    [[nodiscard]] const QList<SeenBox>& boxes() const { return m_boxes; }
    [[nodiscard]] QStringList texts() const;
    [[nodiscard]] QString lastText() const { return m_boxes.isEmpty() ? QString() : m_boxes.last().text; }
    [[nodiscard]] QString lastTitle() const { return m_boxes.isEmpty() ? QString() : m_boxes.last().title; }
    /** True if all steps and answers were used and no unexpected dialog was shown. */
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
