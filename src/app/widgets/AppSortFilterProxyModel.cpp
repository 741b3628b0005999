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

bool AppSortFilterProxyModel::lessThan(const QModelIndex& left, const QModelIndex& right) const
{
    const int type = columnType(left);
    if (type == QMetaType::QDateTime) {
        const auto moment = [this](const QModelIndex& index) {
            return QDateTime::fromString(sourceModel()->data(index).toString(), m_dateFormat);
        };
        return moment(left) < moment(right);
    }
    if (type == qMetaTypeId<Money*>()) {
        const auto amount = [this](const QModelIndex& index) {
            return std::unique_ptr<Money>(
                Money::fromString(plainMoney(sourceModel()->data(index).toString(), m_locale)));
        };
        const auto leftAmount = amount(left);
        const auto rightAmount = amount(right);
        // A cell without an amount is sorted before all amounts.
        if (!leftAmount || !rightAmount)
            return !leftAmount && rightAmount;
        return leftAmount->compare(rightAmount.get()) == -1;
    }
    return KorSortFilterProxyModel::lessThan(left, right);
}
