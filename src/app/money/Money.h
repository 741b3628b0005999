#pragma once

#include "kor/entity/KorEntityValue.h"

#include <QLocale>

/**
 * A currency and an amount in the currency's smallest unit. "Rp", in any letter case, has no fraction digits; every
 * other currency counts as having two. Operations make new objects and leave the operands as they are.
 */
class Money : public KorEntityValue
{
    Q_OBJECT
    Q_PROPERTY(double Amount READ getAmount)
    Q_PROPERTY(QString Currency READ getCurrency)

public:
    /** An empty currency becomes the symbol of the context's locale. The value is in whole units of the currency. */
    Money(QObject* parent, double value, const QString& currency);
    Money(QObject* parent, int value, const QString& currency);

    /** Whole units, with the fraction cut off: that is what goes to the database. */
    [[nodiscard]] double getAmount() const;
    /** Minor units. */
    [[nodiscard]] int rawAmount() const { return m_amount; }
    /** The fraction is cut off. */
    void setRawAmount(double amount);
    [[nodiscard]] QString getCurrency() const { return m_currency; }
    void setCurrency(const QString& currency);
    [[nodiscard]] int factor() const;

    /** Raw amounts are added whatever the other currency is; the result's currency is the left operand's. */
    [[nodiscard]] Money* add(Money* other) const;
    [[nodiscard]] Money* subtract(Money* other) const;
    [[nodiscard]] Money* multiply(double factor) const;
    [[nodiscard]] Money* divide(double divisor) const;
    [[nodiscard]] bool greaterThan(const Money* other) const { return m_amount > other->m_amount; }
    [[nodiscard]] bool greaterOrEqual(const Money* other) const { return m_amount >= other->m_amount; }
    /** -1, 0 or 1, by raw amounts alone. */
    [[nodiscard]] int compare(const Money* other) const;

    /** The amount as a number of the context's locale, without a currency sign. */
    [[nodiscard]] QString toString() const;
    [[nodiscard]] QString toStringAbs() const;
    /** The same with the sign in front of it, for a sentence. */
    [[nodiscard]] QString toCurrencyString() const { return m_currency + toString(); }
    /** From "currency number"; null for anything else. The caller owns the result. */
    [[nodiscard]] static Money* fromString(const QString& text);

    [[nodiscard]] Money* copy(QObject* parent) const;

private:
    [[nodiscard]] int fractionDigits() const;

    int m_amount = 0;
    QString m_currency;
    QLocale m_locale;
};

Q_DECLARE_METATYPE(Money*)

/**
 * Puts a value into a record's field: a child of the record is taken as it is, anything else is copied, so that no
 * value ever has two owners. The former value dies. Null empties the field.
 */
void assignMoney(QObject* owner, Money*& field, Money* value);

/** A field of a record that holds money, owned by the record; null until it is set. */
#define MONEY_PROPERTY(Name)                                                                                           \
    Q_PROPERTY(Money* Name READ get##Name WRITE set##Name)                                                             \
public:                                                                                                                \
    Money* get##Name() const { return m_##Name; }                                                                      \
    void set##Name(Money* value) { assignMoney(this, m_##Name, value); }                                               \
                                                                                                                       \
private:                                                                                                               \
    Money* m_##Name = nullptr;
