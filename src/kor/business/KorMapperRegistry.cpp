#include "kor/business/KorMapperRegistry.h"

#include "kor/business/KorFamily.h"

namespace
{
QList<KorMapperRegistry*>& registries()
{
    static QList<KorMapperRegistry*> made;
    return made;
}
} // namespace

KorMapperRegistry::KorMapperRegistry(const QList<KorFamily>& families, QObject* parent) : QObject(parent)
{
    registries().append(this);
    for (const KorFamily& family : families) {
        if (family.makeMapper)
            add(family.makeMapper(this));
    }
}

KorMapperRegistry::~KorMapperRegistry() { registries().removeOne(this); }

KorDataMapper* KorMapperRegistry::find(const QMetaObject& type)
{
    for (const KorMapperRegistry* registry : qAsConst(registries())) {
        for (KorDataMapper* mapper : registry->all()) {
            if (mapper->metaObject() == &type)
                return mapper;
        }
    }
    return nullptr;
}

void KorMapperRegistry::add(KorDataMapper* mapper)
{
    m_byName.insert(mapper->name(), mapper);
    m_ordered.append(mapper);
}
