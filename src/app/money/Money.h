#pragma once

#include "kor/entity/KorEntityValue.h"

/**
 * A currency and an amount in its minor units. "Rp" (any case) has no fraction digits, every other currency two.
 * Operations return new objects and do not change the operands.
 */
class Money : public KorEntityValue
{
    Q_OBJECT
    Q_PROPERTY(double Amount READ getAmount)
    Q_PROPERTY(QString Currency READ getCurrency)

public:
    /** The value is in whole units. An empty currency becomes the currency symbol of the context's locale. */
    Money(QObject* parent, double value, const QString& currency);
    Money(QObject* parent, int value, const QString& currency);

    /** In whole units, as stored in the database; the fraction is cut off. */
    [[nodiscard]] double getAmount() const;
    /** In minor units. */
    [[nodiscard]] int rawAmount() const { return m_amount; }
    /** In minor units; the fraction is cut off. */
    void setRawAmount(double amount);
    [[nodiscard]] QString getCurrency() const { return m_currency; }
    void setCurrency(const QString& currency);
    [[nodiscard]] int factor() const;

    /**
     * Adds the raw amounts without regard to the other currency. The result has this currency and is a child of
     * "other".
     */
    [[nodiscard]] Money* add(Money* other) const;
    [[nodiscard]] Money* subtract(Money* other) const;
    [[nodiscard]] Money* multiply(double factor) const;
    [[nodiscard]] Money* divide(double divisor) const;
    [[nodiscard]] bool greaterThan(const Money* other) const { return m_amount > other->m_amount; }
    [[nodiscard]] bool greaterOrEqual(const Money* other) const { return m_amount >= other->m_amount; }
    /** -1, 0 or 1; compares only the raw amounts. */
    [[nodiscard]] int compare(const Money* other) const;

    /** The amount formatted for the context's locale, without currency. */
    [[nodiscard]] QString toString() const;
    [[nodiscard]] QString toStringAbs() const;
    /** The same with the currency in front. */
    [[nodiscard]] QString toCurrencyString() const { return m_currency + toString(); }
    /** Parses "currency number"; null for any other text. The caller owns the result. */
    [[nodiscard]] static Money* fromString(const QString& text);

    [[nodiscard]] Money* copy(QObject* parent) const;

private:
    [[nodiscard]] int fractionDigits() const;

    int m_amount = 0;
    QString m_currency;
};

Q_DECLARE_METATYPE(Money*)

/**
 * Sets a money field of a record and deletes its old value. A child of the record is used itself, any other value is
 * copied, so that no value has two owners. Null clears the field.
 */
void assignMoney(QObject* owner, Money*& field, Money* value);

/** A money field of a record, which owns it; null until it is set. */
#define MONEY_PROPERTY(Name)                                                                                           \
    Q_PROPERTY(Money* Name READ get##Name WRITE set##Name)                                                             \
public:                                                                                                                \
    Money* get##Name() const { return m_##Name; }                                                                      \
    void set##Name(Money* value) { assignMoney(this, m_##Name, value); }                                               \
                                                                                                                       \
private:                                                                                                               \
    Money* m_##Name = nullptr;
