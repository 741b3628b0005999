#include "pos/masterdata/agent/BusinessAgent.h"

#include "pos/masterdata/agent/DataMapperAgent.h"

BusinessAgent::BusinessAgent(QObject* parent, DataMapperAgent* mapper) : AppMasterService("Agent", mapper, parent) {}

QList<KorPermission> BusinessAgent::getPermissions() const
{
    return {{INSERT_AGENT, tr("Insert agent")}, {UPDATE_AGENT, tr("Update agent")}, {DELETE_AGENT, tr("Delete agent")}};
}
