#pragma once

#include "app/widgets/AppEntityModel.h"

class EntityOrderDetail;

/** The lines of an order being taken: what was ordered, at today's prices, and what the kitchen says about it. */
class OrderLinesModel : public AppEntityModel
{
    Q_OBJECT

public:
    enum Column { Code, Name, Qty, Unit, UnitPrice, Amount, Status, Description };

    OrderLinesModel(const QList<KorEntity*>& lines, QObject* parent);

protected:
    /** What the column "Status" says. */
    [[nodiscard]] virtual QString statusText(const EntityOrderDetail& line) const;
};
