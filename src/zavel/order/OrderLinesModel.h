#pragma once

#include "app/widgets/AppEntityModel.h"

class EntityOrderDetail;

/** The lines in an order's form: the items at their current prices, and the kitchen's status texts. */
class OrderLinesModel : public AppEntityModel
{
    Q_OBJECT

public:
    enum Column { Code, Name, Qty, Unit, UnitPrice, Amount, Status, Description };

    OrderLinesModel(const QList<KorEntity*>& lines, QObject* parent);

protected:
    /** The text of the column "Status". */
    [[nodiscard]] virtual QString statusText(const EntityOrderDetail& line) const;
};
