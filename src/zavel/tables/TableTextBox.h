#pragma once

#include "app/widgets/AppEntityTextBox.h"
#include "zavel/tables/BusinessMeja.h"

/** Makes a line edit find the restaurant's tables. */
class TableTextBox final : public AppMasterTextBox<EntityMeja, BusinessMeja>
{
    Q_OBJECT

public:
    TableTextBox(QLineEdit* editor, BusinessMeja* tables) : AppMasterTextBox(editor, tables, {tr("Code"), tr("Name")})
    {}
};
