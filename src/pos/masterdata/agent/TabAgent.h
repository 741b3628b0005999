#pragma once

#include "app/widgets/AppListTab.h"
#include "pos/masterdata/agent/BusinessAgent.h"
#include "pos/masterdata/agent/DialogAgent.h"
#include "pos/masterdata/agent/TableModelAgent.h"

/** The list of the agents. */
class TabAgent final : public AppFamilyTab<BusinessAgent, TableModelAgent, DialogAgent>
{
    Q_OBJECT

public:
    explicit TabAgent(QWidget* parent = nullptr);

protected:
    [[nodiscard]] QString notFoundText(int id) const override;
    [[nodiscard]] QString deleteQuestion(const KorEntity* entity) const override;
};
