#pragma once

#include "app/widgets/AppEntityModel.h"

/** The kitchen's queue: which order, and how long it has been waiting. The age is told anew at each look at the cell.
 */
class TableModelQueue final : public AppEntityModel
{
    Q_OBJECT

public:
    enum Column { Code, ElapsedTime };

    TableModelQueue(const QList<KorEntity*>& queue, QObject* parent);
};
