#pragma once

#include "pos/masterdata/contact/ContactTableModel.h"

class TableModelAgent final : public ContactTableModel
{
    Q_OBJECT

public:
    using ContactTableModel::ContactTableModel;
};
