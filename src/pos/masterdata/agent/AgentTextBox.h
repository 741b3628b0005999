#pragma once

#include "app/widgets/AppEntityTextBox.h"
#include "pos/masterdata/agent/BusinessAgent.h"

/** A lookup box for agents. */
class AgentTextBox final : public AppMasterTextBox<EntityAgent, BusinessAgent>
{
    Q_OBJECT

public:
    AgentTextBox(QLineEdit* editor, BusinessAgent* agents) : AppMasterTextBox(editor, agents, {tr("Code"), tr("Name")})
    {}
};
