#pragma once

#include "masterdata/contact/ContactTableModel.h"

class TableModelAgent final : public ContactTableModel
{
    Q_OBJECT

public:
    using ContactTableModel::ContactTableModel;
};
