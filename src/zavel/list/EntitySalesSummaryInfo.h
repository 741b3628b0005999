#pragma once

#include "kor/entity/KorEntity.h"

#include <QDate>

/** What was sold on one day or in one month. It is read, never stored. Amounts are as stored: whole currency units. */
class EntitySalesSummaryInfo : public KorEntity
{
    Q_OBJECT
    /** The day, or the first of the month. */
    KOR_PROPERTY(QDate, Date, QDate())
    KOR_PROPERTY(qint64, SalesCount, 0)
    KOR_PROPERTY(qint64, Total, 0)
    /** What stayed in the drawer: the change handed back is no taking. */
    KOR_PROPERTY(qint64, Cash, 0)
    KOR_PROPERTY(qint64, Credit, 0)

public:
    using KorEntity::KorEntity;
};
