#pragma once

#include "pos/masterdata/contact/EntityPayee.h"

/** One who brings guests and gets a share, in percent, of what they spend. */
class EntityAgent : public EntityPayee
{
    Q_OBJECT
    KOR_PROPERTY(double, CommisionPerc, 0.0)

public:
    using EntityPayee::EntityPayee;
};
