#pragma once

#include "app/persistence/AppMasterMapper.h"
#include "kor/business/KorBusinessLogic.h"

/** Service of a master record with a code and a name. Errors are kept under "findByCode" and "findall". */
template <class Entity>
class AppMasterService : public KorBusinessLogic
{
public:
    AppMasterService(const QString& name, AppMasterMapper* mapper, QObject* parent)
        : KorBusinessLogic(name, mapper, parent), m_master(mapper)
    {}

    Entity* find(int id) override { return static_cast<Entity*>(KorBusinessLogic::find(id)); }
    Entity* find(const QString& column, const QString& value) override
    {
        return static_cast<Entity*>(KorBusinessLogic::find(column, value));
    }
    [[nodiscard]] Entity* findByCode(const QString& code)
    {
        return static_cast<Entity*>(read(m_master->findByCode(code), m_master, "findByCode"));
    }
    [[nodiscard]] QList<KorEntity*> findAll(const QString& filter)
    {
        return read(m_master->findAll(filter), m_master, "findall");
    }

private:
    AppMasterMapper* m_master;
};
