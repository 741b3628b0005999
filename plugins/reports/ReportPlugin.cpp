#include "reports/ReportPlugin.h"

#include "reports/catalogue/ReportCatalogue.h"
#include "reports/page/TabReport.h"

KorTab* ReportPlugin::createTab(const QString& reportName)
{
    const QList<ReportSubject> subjects = ReportCatalogue::subjects();
    for (const ReportSubject& subject : subjects) {
        if (subject.name != reportName)
            continue;
        const auto connection = [this] {
            return ReportConnection{m_settings.value("db_host"), m_settings.value("db_port").toInt(),
                                    m_settings.value("db_name"), m_settings.value("db_username"),
                                    m_settings.value("db_password")};
        };
        return new TabReport(subject, connection, m_settings.value("date_format"));
    }
    return nullptr;
}
