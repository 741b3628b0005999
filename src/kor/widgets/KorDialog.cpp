#include "kor/widgets/KorDialog.h"

#include "kor/entity/KorEntity.h"
#include "kor/widgets/KorButtonKeys.h"
#include "kor/widgets/KorErrorBox.h"
#include "kor/widgets/KorNumberEdit.h"
#include "kor/widgets/KorTextGuard.h"
#include "kor/widgets/KorViewMemory.h"

#include <QAbstractButton>
#include <QDialogButtonBox>
#include <QIcon>
#include <QKeyEvent>
#include <QLabel>
#include <QMessageBox>
#include <QRegularExpression>
#include <QTimer>

#include <algorithm>

namespace
{
/** The box's name in the form: the label without its shortcut mark and colon. */
QString nameOf(const QWidget* box)
{
    QString name = box->accessibleName();
    const QList<QLabel*> labels = box->window()->findChildren<QLabel*>();
    for (const QLabel* label : labels) {
        if (label->buddy() == box)
            name = label->text();
    }
    return name.remove('&').remove(QRegularExpression("[\\s:*]+$"));
}
} // namespace

KorDialog::KorDialog(QWidget* parent) : QDialog(parent)
{
    KorButtonKeys::watch();
    KorTextGuard::watch();
    // The form has no fields yet, so the filter reaches none, and Return still presses the default button.
    const QList<QWidget*> fields = findChildren<QWidget*>();
    for (QWidget* field : fields)
        field->installEventFilter(this);
    setStyleSheet("QDialogButtonBox  {  dialogbuttonbox-buttons-have-icons: 1;  icon-size: 16px 16px; "
                  "dialog-ok-icon: url(:/icons/accept.png);  dialog-cancel-icon: url(:/icons/door_out.png);}");
    setWindowIcon(QIcon(":/icons/Beverage-Coffee-02.png"));
    setWindowFlag(Qt::WindowContextHelpButtonHint, false);
}

KorDialog::~KorDialog()
{
    // Deleting a visible form makes its boxes lose the focus and emit signals, but the receivers are partly destroyed.
    const QList<QObject*> parts = findChildren<QObject*>();
    for (const QObject* part : parts)
        part->disconnect(this);
    delete m_entity;
}

KorEntity* KorDialog::getEntity()
{
    if (!m_entity && m_make)
        m_entity = m_make();
    for (const KorBoundBox& box : qAsConst(m_boxes))
        box.take(m_entity);
    return m_entity;
}

void KorDialog::setEntity(KorEntity* entity)
{
    hold(entity);
    for (const KorBoundBox& box : qAsConst(m_boxes))
        box.show(*entity);
}

bool KorDialog::beforeAccept() { return !m_saver || m_saver(); }

bool KorDialog::execWith(KorEntity* entity)
{
    setEntity(entity);
    return exec() == Accepted && hasError();
}

bool KorDialog::execWithKey(const QString& key)
{
    setKey(key);
    return exec() == Accepted && hasError();
}

int KorDialog::setKey(const QString& key)
{
    Q_UNUSED(key)
    return 0;
}

void KorDialog::addError(QWidget* widget, const QString& message)
{
    if (!m_errorFields.contains(widget))
        m_errorFields.append(widget);
    m_errors[widget].append(message);
}

void KorDialog::accept() { done(Accepted); }

void KorDialog::showEvent(QShowEvent* event)
{
    if (!m_sizeAtFirst.isValid()) {
        KorViewMemory::restoreSize(this);
        m_sizeAtFirst = size();
    }
    QDialog::showEvent(event);
}

void KorDialog::done(int result)
{
    if (m_sizeAtFirst.isValid() && size() != m_sizeAtFirst)
        KorViewMemory::rememberSize(this);
    if (result != Accepted) {
        QDialog::done(result);
        return;
    }
    m_errors.clear();
    m_errorFields.clear();
    const bool isFit = validate();
    if (!checkNumbers() || !isFit) {
        const QString text = composeErrors();
        if (!text.isEmpty())
            KorErrorBox::critical(this, tr("Error"), text);
        if (!m_errorFields.isEmpty())
            m_errorFields.first()->setFocus();
        return;
    }
    if (settleDoubts() && beforeAccept())
        QDialog::done(Accepted);
}

QList<KorNumberEdit*> KorDialog::numberBoxes() const
{
    QList<KorNumberEdit*> boxes = findChildren<KorNumberEdit*>();
    const auto takesNoEntry = [this](const KorNumberEdit* box) {
        return box->isReadOnly() || !box->isEnabled() || box->isHidden() || box->window() != window();
    };
    boxes.erase(std::remove_if(boxes.begin(), boxes.end(), takesNoEntry), boxes.end());
    return boxes;
}

bool KorDialog::checkNumbers()
{
    bool isFit = true;
    const QList<KorNumberEdit*> boxes = numberBoxes();
    for (KorNumberEdit* box : boxes) {
        const QString fault = box->fault();
        isFit = isFit && fault.isEmpty() && !m_errors.contains(box);
        // The form's own message replaces the box's, unless the box was misspelt (a comma for a point).
        const bool isTold = m_errors.contains(box) && !box->isMisspelt();
        if (!fault.isEmpty() && !isTold && !m_errors.value(box).contains(fault))
            addError(box, fault);
    }
    return isFit;
}

bool KorDialog::settleDoubts()
{
    QList<KorNumberEdit*> doubtful;
    QStringList doubts;
    const QList<KorNumberEdit*> boxes = numberBoxes();
    for (KorNumberEdit* box : boxes) {
        const QString doubt = box->doubt();
        if (doubt.isEmpty())
            continue;
        doubtful.append(box);
        const QString name = nameOf(box);
        doubts.append(name.isEmpty() ? doubt : name + ": " + doubt);
    }
    if (doubtful.isEmpty())
        return true;
    if (QMessageBox::question(this, tr("Question"), doubts.join('\n') + "\n\n" + tr("Do you want to go on?"),
                              QMessageBox::Yes | QMessageBox::No, QMessageBox::No) != QMessageBox::Yes) {
        doubtful.first()->setFocus();
        return false;
    }
    for (KorNumberEdit* box : qAsConst(doubtful))
        box->settle();
    return true;
}

QString KorDialog::composeErrors() const
{
    QString text;
    for (QWidget* field : m_errorFields) {
        for (const QString& message : m_errors.value(field))
            text += message + "\r\n";
    }
    return text;
}

bool KorDialog::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::KeyPress && static_cast<QKeyEvent*>(event)->key() == Qt::Key_Return) {
        focusNextPrevChild(true);
        return true;
    }
    return QDialog::eventFilter(watched, event);
}

bool KorDialog::require(QLineEdit* field, const QString& message) { return requireText(field, field->text(), message); }

bool KorDialog::requireText(QWidget* field, const QString& text, const QString& message)
{
    if (!text.isEmpty())
        return true;
    addError(field, message);
    return false;
}

bool KorDialog::requireUnused(QWidget* field, const KorEntity* found, const QString& message)
{
    if (!found || (m_entity && m_entity->getId() == found->getId()))
        return true;
    addError(field, message);
    return false;
}

bool KorDialog::showError(const QString& text) { return KorErrorBox::tell(this, text); }

void KorDialog::makeTouchable(const QDialogButtonBox* buttons)
{
    const QList<QAbstractButton*> all = buttons->buttons();
    for (QAbstractButton* button : all)
        button->setMinimumSize(110, 40);
}

void KorDialog::focusLater(QWidget* field)
{
    QTimer::singleShot(0, field, [field] { field->setFocus(); });
}
