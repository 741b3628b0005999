#include "kor/widgets/KorPluginTabInterface.h"
#include "kor/widgets/KorTab.h"

#include <QMap>
#include <QVariant>

/** A report page with only a title. */
class TabReport final : public KorTab
{
    Q_OBJECT
};

/** Replaces the report plug-in in tests; it shows the settings it got as dynamic properties. */
class ReportPlugin final : public QObject, public KorPluginTabInterface
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID "core.kor.KorPluginTabInterface")
    Q_INTERFACES(KorPluginTabInterface)

public:
    KorTab* createTab(const QString& reportName) override
    {
        auto* tab = new TabReport;
        tab->setWindowTitle("Report " + reportName);
        for (auto setting = m_settings.cbegin(); setting != m_settings.cend(); ++setting)
            tab->setProperty(setting.key().toLatin1().constData(), setting.value());
        return tab;
    }
    void set(const QString& key, const QString& value) override { m_settings.insert(key, value); }

private:
    QMap<QString, QString> m_settings;
};

#include "ReportPlugin.moc"
