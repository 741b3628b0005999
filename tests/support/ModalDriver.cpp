#include "support/ModalDriver.h"

#include <QApplication>
#include <QPushButton>
#include <QTest>
#include <QTimer>

#include <algorithm>

namespace
{
constexpr int lookInterval = 5;
}

ModalDriver::ModalDriver(QObject* parent) : QObject(parent)
{
    QTimer::singleShot(lookInterval, this, &ModalDriver::look);
}

QStringList ModalDriver::texts() const
{
    QStringList result;
    for (const SeenBox& box : m_boxes)
        result.append(box.text);
    return result;
}

bool ModalDriver::finished() const { return m_steps.isEmpty() && m_answers.isEmpty() && m_surprises.isEmpty(); }

void ModalDriver::clear()
{
    m_answers.clear();
    m_steps.clear();
    m_boxes.clear();
    m_surprises.clear();
}

void ModalDriver::look()
{
    // A new single-shot timer each time: a repeating timer does not fire while its own slot runs a modal window.
    QTimer::singleShot(lookInterval, this, &ModalDriver::look);
    QWidget* modal = QApplication::activeModalWidget();
    if (!modal || !modal->isVisible())
        return;
    if (auto* box = qobject_cast<QMessageBox*>(modal)) {
        press(box);
        return;
    }
    auto* dialog = qobject_cast<QDialog*>(modal);
    if (!dialog)
        return;
    for (int i = 0; i < m_steps.size(); ++i) {
        if (!dialog->metaObject()->inherits(m_steps.at(i).type))
            continue;
        const Step step = m_steps.takeAt(i);
        m_inHand = dialog;
        const QPointer<QDialog> outer = m_workedOn;
        m_workedOn = dialog;
        step.work(dialog);
        m_workedOn = outer;
        return;
    }
    // A step is still working on this dialog.
    if (dialog == m_workedOn)
        return;
    // A dialog may stay open after its step because it refused the input; the next step or the end of the test decides.
    if (dialog == m_inHand && !m_steps.isEmpty())
        return;
    if (dialog != m_inHand)
        m_surprises.append(dialog->metaObject()->className());
    dialog->reject();
}

void ModalDriver::press(QMessageBox* box)
{
    m_boxes.append({box->windowTitle(), box->text(), box->icon(), box->detailedText()});
    // Ignore the button that only shows the details.
    const QList<QAbstractButton*> buttons = box->buttons();
    const auto answers = std::count_if(buttons.cbegin(), buttons.cend(), [box](QAbstractButton* one) {
        return box->buttonRole(one) != QMessageBox::ActionRole;
    });
    QAbstractButton* button = nullptr;
    if (!m_answers.isEmpty() && answers > 1)
        button = box->button(m_answers.takeFirst());
    if (!button)
        button = box->defaultButton();
    if (!button)
        button = box->buttons().value(0);
    QTest::mouseClick(button, Qt::LeftButton);
}
