#pragma once

#include "app/widgets/AppEntityModel.h"

/** The kitchen's queue: the orders and how long each has been waiting. The age is calculated at each data() call. */
class TableModelQueue final : public AppEntityModel
{
    Q_OBJECT

public:
    enum Column { Code, ElapsedTime };

    TableModelQueue(const QList<KorEntity*>& queue, QObject* parent);
};
