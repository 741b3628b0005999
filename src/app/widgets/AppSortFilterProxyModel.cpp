#include "app/widgets/AppSortFilterProxyModel.h"

#include "app/context/AppContext.h"
#include "app/money/Money.h"

#include <QDateTime>

#include <memory>

AppSortFilterProxyModel::AppSortFilterProxyModel(QObject* parent)
    : KorSortFilterProxyModel(parent), m_locale(AppContext::instance()->locale()),
      m_dateFormat(AppContext::instance()->dateFormat())
{}

QString AppSortFilterProxyModel::plainMoney(const QString& cell, const QLocale& locale)
{
    QString currency;
    QString number;
    bool negative = false;
    for (const QChar c : cell) {
        if (c.isDigit())
            number += c;
        else if (c == locale.decimalPoint() && !number.isEmpty())
            number += '.';
        else if (c == '(' || c == '-' || c == locale.negativeSign())
            negative = true;
        else if (c.isLetter() || c.category() == QChar::Symbol_Currency)
            currency += c;
    }
    if (number.isEmpty())
        return {};
    return (currency.isEmpty() ? QStringLiteral("-") : currency) + ' ' + (negative ? "-" : "") + number;
}

QVariant AppSortFilterProxyModel::sortKey(int columnType, const QString& cell) const
{
    if (columnType == QMetaType::QDateTime)
        return QDateTime::fromString(cell, m_dateFormat).toMSecsSinceEpoch();
    if (columnType == qMetaTypeId<Money*>()) {
        const std::unique_ptr<Money> amount(Money::fromString(plainMoney(cell, m_locale)));
        return amount ? QVariant(qlonglong(amount->rawAmount())) : QVariant();
    }
    return KorSortFilterProxyModel::sortKey(columnType, cell);
}
