#pragma once

#include "pos/masterdata/contact/ContactTableModel.h"

/** The rows of the list of agents. */
class TableModelAgent final : public ContactTableModel
{
    Q_OBJECT

public:
    using ContactTableModel::ContactTableModel;
};
