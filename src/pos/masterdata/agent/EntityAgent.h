#pragma once

#include "pos/masterdata/contact/EntityPayee.h"

/** A person who brings guests and gets a commission, in percent of what they spend. */
class EntityAgent : public EntityPayee
{
    Q_OBJECT
    KOR_PROPERTY(double, CommisionPerc, 0.0)

public:
    using EntityPayee::EntityPayee;
};
