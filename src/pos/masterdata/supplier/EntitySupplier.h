#pragma once

#include "pos/masterdata/contact/EntityPayee.h"

/** A person or company that delivers goods to the restaurant. */
class EntitySupplier : public EntityPayee
{
    Q_OBJECT

public:
    using EntityPayee::EntityPayee;
};
