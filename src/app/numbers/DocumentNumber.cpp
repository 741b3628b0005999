#include "app/numbers/DocumentNumber.h"

#include "app/numbers/DataMapperKey.h"
#include "app/numbers/EntityKey.h"

#include <QCoreApplication>

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
