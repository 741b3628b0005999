#pragma once

#include "pos/masterdata/contact/EntityContact.h"

/** One who works here: waiters on orders, cooks, cashiers. */
class EntityEmployee : public EntityContact
{
    Q_OBJECT

public:
    using EntityContact::EntityContact;
};
