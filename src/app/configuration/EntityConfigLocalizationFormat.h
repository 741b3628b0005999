#pragma once

#include "app/configuration/EntityAppConfig.h"

/** The locale and the date format of the restaurant. A missing or invalid member means the default. */
class EntityConfigLocalizationFormat final : public EntityAppConfig
{
    Q_OBJECT

public:
    static QString rowKey() { return QStringLiteral("localization"); }
    static QString defaultDateFormat() { return QStringLiteral("d MMM yyyy"); }
    static QString defaultLocale() { return QStringLiteral("en_US"); }

    explicit EntityConfigLocalizationFormat(QObject* parent = nullptr) : EntityAppConfig(parent)
    {
        setKey(rowKey());
        setIsStoredAsJSON(true);
    }

    [[nodiscard]] QString getLocale() const { return memberOr("locale", defaultLocale()); }
    void setLocale(const QString& locale) { setMember("locale", locale); }
    [[nodiscard]] QString getDateTimeFormat() const { return memberOr("date_time_format", defaultDateFormat()); }
    void setDateTimeFormat(const QString& format) { setMember("date_time_format", format); }

private:
    [[nodiscard]] QString memberOr(const QString& name, const QString& otherwise) const
    {
        const QString text = member(name);
        return text.isEmpty() ? otherwise : text;
    }
};
