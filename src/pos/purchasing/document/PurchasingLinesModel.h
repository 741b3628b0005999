#pragma once

#include "app/widgets/AppEntityModel.h"

/** Base of the models of document lines. A subclass adds the columns in its own order. */
class PurchasingLinesModel : public AppEntityModel
{
    Q_OBJECT

protected:
    using AppEntityModel::AppEntityModel;

    /** Adds the columns "Code" and "Name". */
    void addItem();
    void addQuantity(const QString& header);
    void addUnit();
    void addUnitPrice();
    void addDiscount(const QString& header);
    void addAmount();
};
