#pragma once

#include <QLineEdit>
#include <QLocale>

/**
 * A line edit for a number. Without the focus it shows the number as the locale writes it, group separators and all;
 * with the focus it shows what the user typed last. Programs may ask for the value at any time, also while the user
 * types: the text under the cursor is never rewritten before the entry is finished.
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
