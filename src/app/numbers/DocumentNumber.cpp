#include "app/numbers/DocumentNumber.h"

#include "app/numbers/DataMapperKey.h"
#include "app/numbers/EntityKey.h"

#include <QCoreApplication>

namespace
{
// Distinguishes these locks from other advisory locks: "KEY" in ASCII, the classid in pg_locks.
constexpr int numberLockClass = 0x4b4559;
} // namespace

QString numberLock(const QString& keyName)
{
    // Two names with the same hash would only wait for each other: no document takes two of these locks.
    QString quoted = keyName;
    quoted.replace('\'', "''");
    return QString("select pg_advisory_xact_lock(%1, hashtext('%2'))").arg(QString::number(numberLockClass), quoted);
}

QString drawNumber(DataMapperKey* keys, const QString& keyName, QString* error)
{
    if (EntityKey* key = keys->getKey(keyName)) {
        QString number = key->getGeneratedNo();
        delete key;
        return number;
    }
    const QString reason = keys->takeError();
    *error = QCoreApplication::translate("DocumentNumber", "Can not draw a new number for %1. Please try again.")
                 .arg(keyName);
    if (!reason.isEmpty())
        *error += "\r\n" + reason;
    return {};
}
