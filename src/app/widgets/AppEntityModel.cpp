#include "app/widgets/AppEntityModel.h"

#include "app/context/AppContext.h"
#include "app/widgets/TimeAgo.h"

AppEntityModel::AppEntityModel(QObject* parent) : AppEntityModel(QList<KorEntity*>(), parent) {}

AppEntityModel::AppEntityModel(const QList<KorEntity*>& entities, QObject* parent)
    : KorEntityModel(entities, parent), m_locale(AppContext::instance()->locale()),
      m_dateFormat(AppContext::instance()->dateFormat())
{}

QString AppEntityModel::moneyText(const Money* money) const
{
    return money ? m_locale.toCurrencyString(money->getAmount(), money->getCurrency()) : QString();
}

QString AppEntityModel::elapsedText(const QDateTime& dateTime)
{
    // The clock of the workstation that wrote the time may be ahead of this one.
    const QDateTime now = QDateTime::currentDateTime();
    return timeAgo(std::min(dateTime, now), now, TimeAgoWords::onScreen());
}
