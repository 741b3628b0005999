#include "app/widgets/MoneyEdit.h"

#include <QDebug>

#include <cmath>
#include <limits>

namespace
{
constexpr int decimals = 2;
}

MoneyEdit::MoneyEdit(QWidget* parent)
    : AppNumberEdit(parent), m_currency(locale().currencySymbol(QLocale::CurrencySymbol)),
      m_money(new Money(this, 0.0, m_currency))
{}

QString MoneyEdit::displayText() const { return locale().toString(storedValue(), 'f', decimals); }

void MoneyEdit::validate()
{
    qDebug() << "money entry:" << text();
    AppNumberEdit::validate();
    if (!holdsNumber())
        return;
    qDebug() << "money value:" << storedValue() << m_currency;
    replaceMoney(new Money(this, storedValue(), m_currency));
}

Money* MoneyEdit::money()
{
    validate();
    return m_money;
}

double MoneyEdit::largest() const { return std::floor(double(std::numeric_limits<int>::max()) / m_money->factor()); }

double MoneyEdit::kept() const
{
    return std::abs(storedValue()) > largest() ? storedValue() : Money(nullptr, storedValue(), m_currency).getAmount();
}

bool MoneyEdit::isNothing() { return !isValid() || qFuzzyIsNull(kept()); }

QString MoneyEdit::fault()
{
    const QString fault = AppNumberEdit::fault();
    if (!fault.isEmpty() || !holdsNumber())
        return fault;
    if (storedValue() < 0)
        return tr("The amount must not be negative");
    return storedValue() > largest()
               ? tr("The amount is too large, the largest is %1").arg(locale().toString(largest(), 'f', 0))
               : QString();
}

QString MoneyEdit::doubt()
{
    if (!isValid() || qFuzzyCompare(1 + kept(), 1 + storedValue()))
        return {};
    return tr("%1 will be stored as %2").arg(rawText(), locale().toString(kept(), 'f', 0));
}

void MoneyEdit::settle() { setValue(kept()); }

void MoneyEdit::setMoney(const Money* money)
{
    replaceMoney(money ? money->copy(this) : new Money(this, 0.0, m_currency));
    setValue(m_money->getAmount());
}

void MoneyEdit::replaceMoney(Money* money)
{
    // Not deleted at once: a running calculation may still use the old amount, and sums are its children.
    m_money->deleteLater();
    m_money = money;
}

bool MoneyEdit::finishesEntry(int key) const
{
    return key == Qt::Key_Escape || key == Qt::Key_Return || key == Qt::Key_Enter;
}
