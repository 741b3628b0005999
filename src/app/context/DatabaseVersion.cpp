#include "app/context/DatabaseVersion.h"

#include "kor/persistence/KorQuery.h"

double DatabaseVersion::ofProgram() { return QString(ZAVEL_VERSION).toDouble(); }

QString DatabaseVersion::ofProgramText() { return QString::number(ofProgram()); }

DatabaseVersion DatabaseVersion::read()
{
    DatabaseVersion version{QString()};
    KorQuery query;
    if (query.exec("SELECT appvalue FROM appconfig WHERE appkey = '" + key() + '\'') && query.next()) {
        version.m_text = query.value(0).toString();
        version.m_known = true;
    }
    return version;
}

QString DatabaseVersion::tooNew() const
{
    return tr("The database is of version %1, and this program is of version %2: a newer program has updated the "
              "database. Please start the newer program. To go back to this one, restore the backup that was made "
              "before the update. Nothing was changed.")
        .arg(m_text, ofProgramText());
}
