#include "app/widgets/MoneyEdit.h"

#include "app/money/Money.h"

#include <QDebug>

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

void MoneyEdit::setMoney(const Money* money)
{
    replaceMoney(money ? money->copy(this) : new Money(this, 0.0, m_currency));
    setValue(m_money->getAmount());
}

void MoneyEdit::replaceMoney(Money* money)
{
    // A total that is being reckoned may still hold the former amount, and results hang on it as their parent.
    m_money->deleteLater();
    m_money = money;
}

bool MoneyEdit::finishesEntry(int key) const
{
    return key == Qt::Key_Escape || key == Qt::Key_Return || key == Qt::Key_Enter;
}
