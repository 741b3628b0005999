#pragma once

#include "pos/invoice/Invoice.h"

/** The commission paid for one invoice. An invoice with such a line counts as paid to its agent. */
class EntityKomisiAgenDetail : public KorEntity
{
    Q_OBJECT
    KOR_PROPERTY(int, KomisiAgenID, KorNoValue)
    KOR_REFERENCE(Invoice, Invoice)
    KOR_PROPERTY(double, CommisionPerc, 0)
    MONEY_PROPERTY(Commision)

public:
    using KorEntity::KorEntity;
};
