#pragma once

#include <QLineEdit>
#include <QLocale>

#include <optional>

/**
 * A line edit for a number. Without the focus it shows the number as the locale writes it, group separators and all;
 * with the focus it shows what the user typed last. Programs may ask for the value at any time, also while the user
 * types: the text under the cursor is never rewritten before the entry is finished.
 *
 * What the field shows is what is stored. A form asks every field for its fault and its doubt before it takes them, see
 * KorDialog; the kinds of numbers are the classes derived from this one.
 */
class KorNumberEdit : public QLineEdit
{
    Q_OBJECT

public:
    explicit KorNumberEdit(QWidget* parent = nullptr);

    /** The number as the field shows it when it is not being typed in. */
    [[nodiscard]] virtual QString displayText() const;
    /** Reads the field. A text that is no number leaves the value and the text as they were. */
    virtual void validate();
    [[nodiscard]] virtual bool isValid();
    [[nodiscard]] virtual QLocale locale() const;
    virtual void setValue(double value);
    virtual void setValue(int value);

    /** The number of the last text that was one. */
    [[nodiscard]] double value();
    /**
     * The number that the text means in the language, or nothing. A group mark counts only where groups of three digits
     * stand behind it: whoever writes "1,5" for one and a half must not be taken for fifteen.
     */
    [[nodiscard]] static std::optional<double> parse(const QString& text, const QLocale& language);
    /** Digits and marks that are no number in this language, though they may be one in another. */
    [[nodiscard]] bool isMisspelt();

    /** Why the entry cannot be stored, in the user's words; empty when it can. */
    [[nodiscard]] virtual QString fault();
    /** What would be stored otherwise than it was typed, or is unusual; empty when there is nothing to ask. */
    [[nodiscard]] virtual QString doubt() { return {}; }
    /** The user agreed to the doubt: the field takes the number as it will be stored. */
    virtual void settle() {}
    /** What returns to the field when it gets the focus. */
    [[nodiscard]] QString rawText() const { return m_rawText; }

protected:
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

    /** The number as it stands in the field to be changed. */
    [[nodiscard]] virtual QString editableText() const;
    /** Whether this key finishes the entry. */
    [[nodiscard]] virtual bool finishesEntry(int key) const;
    /** The number as last stored, without a look at the field. */
    [[nodiscard]] double storedValue() const { return m_value; }
    /** Whether the field held a number when it was last read. */
    [[nodiscard]] bool holdsNumber() const { return m_valid; }

    static constexpr int significantDigits = 10;

private:
    void finishEntry();
    [[nodiscard]] bool holdsUntouchedNumber();
    void rememberEntry();
    void write(const QString& ownText);

    double m_value = 0.0;
    QString m_rawText;
    bool m_valid = false;
    QString m_ownText; ///< what the edit itself wrote into the field last; it is not the user's entry
    bool m_finishing = false;
};
