#include "app/numbers/BusinessKey.h"

#include "app/numbers/DataMapperKey.h"

BusinessKey::BusinessKey(QObject* parent, DataMapperKey* mapper)
    : KorBusinessLogic("KeyTable", mapper, parent), m_keys(mapper)
{}

QList<KorPermission> BusinessKey::getPermissions() const { return {{UPDATE_KEY, tr("Update Key")}}; }

QList<KorEntity*> BusinessKey::findAll(const QString& filter)
{
    return read(m_keys->findAll(filter), m_keys, "findall");
}
