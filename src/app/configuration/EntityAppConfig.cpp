#include "app/configuration/EntityAppConfig.h"

#include <QJsonDocument>
#include <QJsonObject>

void EntityAppConfig::toStored()
{
    if (!m_IsStoredAsJSON)
        return;
    QJsonObject object;
    for (auto it = m_members.constBegin(); it != m_members.constEnd(); ++it)
        object.insert(it.key(), it.value());
    m_Value = QString::fromUtf8(QJsonDocument(object).toJson());
}

void EntityAppConfig::fromStored()
{
    if (!m_IsStoredAsJSON)
        return;
    m_members.clear();
    const QJsonObject object = QJsonDocument::fromJson(m_Value.toUtf8()).object();
    for (auto it = object.constBegin(); it != object.constEnd(); ++it)
        m_members.insert(it.key(), it.value().toVariant().toString());
}
