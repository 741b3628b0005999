#include "app/money/Money.h"

#include "app/context/AppContext.h"

#include <QLocale>

#include <cmath>

namespace
{
constexpr int factors[] = {1, 10, 100, 1000};

/** The context's locale. It is cached, since lists create thousands of values. */
QLocale contextLocale()
{
    thread_local QString name;
    thread_local QLocale locale{QString()};
    if (name != AppContext::instance()->locale()) {
        name = AppContext::instance()->locale();
        locale = QLocale(name);
    }
    return locale;
}

/** Converts an amount to 32 bits; larger values wrap, as sums do. */
int toRaw(double amount)
{
    if (!std::isfinite(amount))
        return 0;
    return static_cast<int>(static_cast<qint64>(std::fmod(amount, 4294967296.0)));
}
} // namespace

Money::Money(QObject* parent, double value, const QString& currency) : KorEntityValue(parent)
{
    setCurrency(currency);
    m_amount = toRaw(std::floor(factor() * value + 0.5));
}

Money::Money(QObject* parent, int value, const QString& currency) : KorEntityValue(parent)
{
    setCurrency(currency);
    m_amount = toRaw(static_cast<double>(value) * factor());
}

void Money::setCurrency(const QString& currency)
{
    m_currency = currency.isEmpty() ? contextLocale().currencySymbol(QLocale::CurrencySymbol) : currency;
    if (m_currency.isNull())
        m_currency = QLatin1String("");
}

int Money::fractionDigits() const { return m_currency.compare(QLatin1String("rp"), Qt::CaseInsensitive) == 0 ? 0 : 2; }

int Money::factor() const { return factors[fractionDigits()]; }

double Money::getAmount() const
{
    // Integer division on purpose: stored amounts have no cents.
    const int wholeUnits = m_amount / factor();
    return wholeUnits;
}

Money* Money::add(Money* other) const
{
    auto* sum = new Money(other, 0, m_currency);
    sum->m_amount = static_cast<int>(static_cast<unsigned>(m_amount) + static_cast<unsigned>(other->m_amount));
    return sum;
}

Money* Money::subtract(Money* other) const
{
    auto* difference = new Money(other, 0, m_currency);
    difference->m_amount = static_cast<int>(static_cast<unsigned>(m_amount) - static_cast<unsigned>(other->m_amount));
    return difference;
}

Money* Money::multiply(double factor) const { return new Money(nullptr, getAmount() * factor, m_currency); }

Money* Money::divide(double divisor) const { return new Money(nullptr, getAmount() / divisor, m_currency); }

int Money::compare(const Money* other) const
{
    return m_amount < other->m_amount ? -1 : m_amount > other->m_amount ? 1 : 0;
}

void Money::setRawAmount(double amount) { m_amount = toRaw(amount); }

QString Money::toString() const
{
    QLocale::setDefault(contextLocale());
    return QLocale().toString(getAmount(), 'g', 10);
}

QString Money::toStringAbs() const
{
    QLocale::setDefault(contextLocale());
    return QLocale().toString(std::abs(getAmount()), 'g', 10);
}

Money* Money::fromString(const QString& text)
{
    const QStringList pieces = text.split(' ');
    return pieces.size() == 2 ? new Money(nullptr, pieces[1].toDouble(), pieces[0]) : nullptr;
}

Money* Money::copy(QObject* parent) const
{
    auto* money = new Money(parent, 0, m_currency);
    money->m_amount = m_amount;
    return money;
}

void assignMoney(QObject* owner, Money*& field, Money* value)
{
    if (field == value)
        return;
    Money* own = !value || value->parent() == owner ? value : value->copy(owner);
    delete field;
    field = own;
}
