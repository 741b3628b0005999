#pragma once

#include "pos/masterdata/contact/ContactTableModel.h"

/** The rows of the list of suppliers. */
class TableModelSupplier final : public ContactTableModel
{
    Q_OBJECT

public:
    using ContactTableModel::ContactTableModel;
};
