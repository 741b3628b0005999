#pragma once

#include "kor/entity/KorEntity.h"

#include <QDate>

/** The sales of one day or month. Only read, never stored. Amounts are as in the database: whole currency units. */
class EntitySalesSummaryInfo : public KorEntity
{
    Q_OBJECT
    /** The day, or the first day of the month. */
    KOR_PROPERTY(QDate, Date, QDate())
    KOR_PROPERTY(qint64, SalesCount, 0)
    KOR_PROPERTY(qint64, Total, 0)
    /** Cash received minus the change given back. */
    KOR_PROPERTY(qint64, Cash, 0)
    KOR_PROPERTY(qint64, Credit, 0)

public:
    using KorEntity::KorEntity;
};
