#pragma once

#include "kor/widgets/KorPluginTabInterface.h"

#include <QMap>
#include <QObject>

/** The report plug-in; it creates one page per subject. */
class ReportPlugin final : public QObject, public KorPluginTabInterface
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID "core.kor.KorPluginTabInterface")
    Q_INTERFACES(KorPluginTabInterface)

public:
    KorTab* createTab(const QString& reportName) override;
    void set(const QString& key, const QString& value) override { m_settings.insert(key, value); }

private:
    QMap<QString, QString> m_settings;
};
