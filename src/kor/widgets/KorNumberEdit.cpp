#include "kor/widgets/KorNumberEdit.h"

#include <QFocusEvent>
#include <QKeyEvent>
#include <QRegularExpression>
#include <QScopedValueRollback>
#include <QStyle>
#include <QStyleOption>

#include <algorithm>
#include <cmath>

KorNumberEdit::KorNumberEdit(QWidget* parent) : QLineEdit(parent) { setAlignment(Qt::AlignRight); }

QString KorNumberEdit::displayText() const { return locale().toString(m_value, 'g', significantDigits); }

QString KorNumberEdit::editableText() const { return QString::number(m_value, 'g', significantDigits); }

QLocale KorNumberEdit::locale() const { return QLocale(QLocale::Indonesian, QLocale::Indonesia); }

void KorNumberEdit::validate()
{
    rememberEntry();
    if (holdsUntouchedNumber())
        return;
    const std::optional<double> number = parse(text(), locale());
    m_valid = number.has_value();
    if (!m_valid)
        return;
    m_value = *number;
    if (!hasFocus() || m_finishing)
        write(displayText());
}

std::optional<double> KorNumberEdit::parse(const QString& text, const QLocale& language)
{
    const QString group = QRegularExpression::escape(language.groupSeparator());
    // The groups are followed only by the decimal point and its digits, not by a group separator.
    const QRegularExpression grouped(QString("^\\s*[-+]?[1-9]\\d{0,2}(%1\\d{3})+(?!\\d)(?!.*%1)").arg(group));
    if (text.contains(language.groupSeparator()) && !grouped.match(text).hasMatch())
        return std::nullopt;
    bool isNumber = false;
    const double number = language.toDouble(QString(text).remove(language.groupSeparator()), &isNumber);
    // The locale reads "nan" and "inf" as numbers, but they are no amounts.
    return isNumber && std::isfinite(number) ? std::optional(number) : std::nullopt;
}

bool KorNumberEdit::isMisspelt()
{
    static const QRegularExpression digitsAndMarks("^(?=.*\\d)[-+\\d.,'\\s]+$");
    return !isValid() && digitsAndMarks.match(text()).hasMatch();
}

QString KorNumberEdit::fault()
{
    // A percent of zero is not a number; if the form itself shows it, it is not an entry.
    if (isValid() || (!std::isfinite(m_value) && text() == displayText()))
        return {};
    return isMisspelt()
               ? tr("\"%1\" is no number here, please write it like %2").arg(text(), locale().toString(1234.5, 'f', 1))
               : tr("Please enter a number");
}

bool KorNumberEdit::holdsUntouchedNumber()
{
    // The text of a stored number has a decimal point, which some locales read as a group separator. Moving the focus
    // through the field must not multiply the number by ten.
    if (isModified() || text().isEmpty() || text() != editableText() || text() == displayText())
        return false;
    m_valid = true;
    if (!hasFocus() || m_finishing)
        write(displayText());
    return true;
}

bool KorNumberEdit::isValid()
{
    validate();
    return m_valid;
}

double KorNumberEdit::value()
{
    validate();
    return m_value;
}

void KorNumberEdit::setValue(double value)
{
    m_value = value;
    m_rawText = editableText();
    write(displayText());
}

void KorNumberEdit::setValue(int value) { setValue(static_cast<double>(value)); }

bool KorNumberEdit::finishesEntry(int key) const { return key == Qt::Key_Return; }

void KorNumberEdit::finishEntry()
{
    const QScopedValueRollback<bool> finishing(m_finishing, true);
    validate();
}

void KorNumberEdit::rememberEntry()
{
    // Receivers of textChanged call value() while the edit writes its own text, which is not an entry.
    if (m_ownText.isNull() || text() != m_ownText)
        m_rawText = text();
}

void KorNumberEdit::write(const QString& ownText)
{
    m_ownText = ownText;
    if (text() != ownText)
        setText(ownText);
}

void KorNumberEdit::focusInEvent(QFocusEvent* event)
{
    QLineEdit::focusInEvent(event);
    // The focus comes back after the field's context menu closes.
    if (event->reason() == Qt::PopupFocusReason)
        return;
    rememberEntry();
    m_ownText = QString();
    const bool replaceAll = hasSelectedText();
    setText(m_rawText);
    if (replaceAll)
        selectAll();
    // The style sheet for the border removes the style's text margins, so that the field would shrink.
    QStyleOptionFrame option;
    initStyleOption(&option);
    const QRect textBefore = style()->subElementRect(QStyle::SE_LineEditContents, &option, this);
    const int heightBefore = sizeHint().height();
    setStyleSheet("border: 1px solid #005782;");
    const QRect textNow = style()->subElementRect(QStyle::SE_LineEditContents, &option, this);
    const int lost = std::max(0, heightBefore - sizeHint().height());
    setTextMargins(std::max(0, textBefore.left() - textNow.left()), lost / 2,
                   std::max(0, textNow.right() - textBefore.right()), lost - lost / 2);
}

void KorNumberEdit::focusOutEvent(QFocusEvent* event)
{
    if (event->reason() == Qt::PopupFocusReason) {
        QLineEdit::focusOutEvent(event);
        return;
    }
    finishEntry();
    QLineEdit::focusOutEvent(event);
    setStyleSheet(QString());
    setTextMargins(0, 0, 0, 0);
}

void KorNumberEdit::keyPressEvent(QKeyEvent* event)
{
    if (finishesEntry(event->key()))
        finishEntry();
    QLineEdit::keyPressEvent(event);
}
