#pragma once

#include "app/widgets/AppEntityModel.h"

/** The lines of a purchasing document. A concrete model puts the columns together in its own order. */
class PurchasingLinesModel : public AppEntityModel
{
    Q_OBJECT

protected:
    using AppEntityModel::AppEntityModel;

    /** "Code" and "Name". */
    void addItem();
    void addQuantity(const QString& header);
    void addUnit();
    void addUnitPrice();
    void addDiscount(const QString& header);
    void addAmount();
};
