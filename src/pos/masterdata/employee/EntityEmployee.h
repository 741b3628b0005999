#pragma once

#include "pos/masterdata/contact/EntityContact.h"

/** An employee: a waiter, cook or cashier. */
class EntityEmployee : public EntityContact
{
    Q_OBJECT

public:
    using EntityContact::EntityContact;
};
