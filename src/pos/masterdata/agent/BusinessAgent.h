#pragma once

#include "app/persistence/AppMasterService.h"
#include "pos/masterdata/agent/EntityAgent.h"

class DataMapperAgent;

/** The service of the agents. */
class BusinessAgent final : public AppMasterService<EntityAgent>
{
    Q_OBJECT

public:
    enum PERMISSIONS { INSERT_AGENT, UPDATE_AGENT, DELETE_AGENT };
    Q_ENUM(PERMISSIONS)

    BusinessAgent(QObject* parent, DataMapperAgent* mapper);

    [[nodiscard]] QList<KorPermission> getPermissions() const override;
};
