#pragma once

#include "pos/masterdata/contact/ContactTableModel.h"

class TableModelSupplier final : public ContactTableModel
{
    Q_OBJECT

public:
    using ContactTableModel::ContactTableModel;
};
