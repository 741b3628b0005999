#pragma once

#include <QLineEdit>
#include <QLocale>

#include <optional>

/**
 * A line edit for a number. Without focus it shows the number in the locale's format with group separators; with focus
 * it shows what the user typed last. value() may be called at any time, also during typing: the text is not rewritten
 * before the entry is finished.
 *
 * The field stores what it shows. A form asks each field for fault() and doubt() before saving, see KorDialog. The
 * derived classes are the kinds of numbers.
 */
class KorNumberEdit : public QLineEdit
{
    Q_OBJECT
    Q_PROPERTY(double value READ value WRITE setValue USER true)

public:
    explicit KorNumberEdit(QWidget* parent = nullptr);

    /** The text shown without focus. */
    [[nodiscard]] virtual QString displayText() const;
    /** Reads the field. Text that is not a number leaves value and text unchanged. */
    virtual void validate();
    [[nodiscard]] virtual bool isValid();
    [[nodiscard]] virtual QLocale locale() const;
    virtual void setValue(double value);
    virtual void setValue(int value);

    /** The last valid number. */
    [[nodiscard]] double value();
    /**
     * The number that the text means in this locale, or nothing. Group separators count only before groups of three
     * digits: "1,5" for one and a half must not be read as fifteen.
     */
    [[nodiscard]] static std::optional<double> parse(const QString& text, const QLocale& language);
    /** True for digits and separators that are not a number in this locale, but may be in another. */
    [[nodiscard]] bool isMisspelt();

    /** Why the entry cannot be stored, in the user's language; empty if it can. */
    [[nodiscard]] virtual QString fault();
    /** A question if the number would be stored differently from what was typed, or is unusual; otherwise empty. */
    [[nodiscard]] virtual QString doubt() { return {}; }
    /** The user has confirmed the doubt: the field takes the number as it will be stored. */
    virtual void settle() {}
    /** The text that the field shows when it gets the focus. */
    [[nodiscard]] QString rawText() const { return m_rawText; }

protected:
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

    /** The number as a text for editing. */
    [[nodiscard]] virtual QString editableText() const;
    /** Whether this key ends the entry. */
    [[nodiscard]] virtual bool finishesEntry(int key) const;
    /** The last stored number, without reading the field. */
    [[nodiscard]] double storedValue() const { return m_value; }
    /** Whether the text was a number when last read. */
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
    QString m_ownText; ///< the text that the edit itself wrote last; it is not the user's entry
    bool m_finishing = false;
};
