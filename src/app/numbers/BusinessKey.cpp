#include "app/numbers/BusinessKey.h"

#include "app/numbers/DataMapperKey.h"
#include "app/numbers/DocumentNumber.h"
#include "app/numbers/EntityKey.h"
#include "kor/business/KorServiceTransaction.h"

BusinessKey::BusinessKey(QObject* parent, DataMapperKey* mapper)
    : KorBusinessLogic("KeyTable", mapper, parent), m_keys(mapper)
{}

QList<KorPermission> BusinessKey::getPermissions() const { return {{UPDATE_KEY, tr("Update Key")}}; }

bool BusinessKey::update(KorEntity* key)
{
    return inOneTransaction(*this, "update", [this, key] { return KorBusinessLogic::update(key); }, {},
                            {numberLock(static_cast<EntityKey*>(key)->getKeyName())});
}

QList<KorEntity*> BusinessKey::findAll(const QString& filter)
{
    return read(m_keys->findAll(filter), m_keys, "findall");
}
