#include "pos/masterdata/agent/TabAgent.h"

TabAgent::TabAgent(QWidget* parent) : AppFamilyTab({tr("Agents"), "tblAgent", "Agent"}, parent) { refresh(); }

QString TabAgent::deleteQuestion(const KorEntity* entity) const
{
    return tr("Are you sure you want to delete this agent: %1 ?")
        .arg(static_cast<const EntityAgent*>(entity)->getNama());
}

QString TabAgent::notFoundText(int) const { return tr("Can not find entity with id: %"); }
