#pragma once

#include "pos/masterdata/contact/EntityContact.h"

#include <QDate>

/** A regular guest with a discount in percent until the membership expires. */
class EntityMember : public EntityContact
{
    Q_OBJECT
    KOR_PROPERTY(QDate, ExpiredDate, QDate())
    KOR_PROPERTY(double, DiscountPercentage, 0.0)

public:
    using EntityContact::EntityContact;
};
