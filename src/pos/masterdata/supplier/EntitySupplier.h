#pragma once

#include "pos/masterdata/contact/EntityPayee.h"

/** One who delivers goods to the restaurant. */
class EntitySupplier : public EntityPayee
{
    Q_OBJECT

public:
    using EntityPayee::EntityPayee;
};
