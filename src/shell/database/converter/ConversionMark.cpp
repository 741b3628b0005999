#include "shell/database/converter/ConversionMark.h"

#include "app/configuration/BusinessConfiguration.h"
#include "app/context/EntityPool.h"
#include "kor/business/KorErrorScope.h"
#include "kor/persistence/KorQuery.h"

#include <QDateTime>

namespace
{
constexpr char rowKey[] = "conversion";

bool isTrue(const QString& statement)
{
    KorQuery query;
    return query.exec(statement) && query.next() && query.value(0).toBool();
}
} // namespace

bool ConversionMark::claim() { return isTrue("select pg_try_advisory_lock(hashtext('conversion'))"); }

bool ConversionMark::isClaimed()
{
    return isTrue("select exists(select 1 from pg_locks where locktype = 'advisory' and pid = pg_backend_pid())");
}

bool ConversionMark::isSet() const { return !m_configuration->getValue(rowKey).isEmpty(); }

bool ConversionMark::set(const QString& source)
{
    if (isSet())
        return true;
    EntityAppConfig mark;
    mark.setKey(rowKey);
    mark.setValue(tr("%1, begun %2").arg(source, QDateTime::currentDateTime().toString("yyyy-MM-dd hh:mm")));
    mark.setDescription(tr("Stands while the data of a former system are brought over"));
    return m_configuration->insert(&mark);
}

bool ConversionMark::remove()
{
    EntityPool pool;
    const EntityPoolScope scope(pool);
    EntityAppConfig* mark = m_configuration->getConfig(rowKey);
    return !mark || m_configuration->remove(mark);
}

QString ConversionMark::explanation() const
{
    const KorErrorScope errors(m_configuration);
    const QString value = m_configuration->getValue(rowKey);
    // If another connection has the lock, its conversion is still running.
    if (value.isEmpty() || !claim())
        return {};
    isTrue("select pg_advisory_unlock(hashtext('conversion'))");
    return tr("Bringing over the data of the former system (%1) has not come to its end. What has been brought over is "
              "complete in itself. Run the converter once more: it leaves alone what is there already and adds the "
              "rest.")
        .arg(value);
}
