#pragma once

#include "pos/purchasing/document/SelectDocumentDialog.h"
#include "pos/purchasing/purchaseorder/TabSelectPO.h"

/** Lets the user choose the order whose goods were delivered. */
class DialogSelectPO final : public SelectDocumentDialog
{
    Q_OBJECT

public:
    explicit DialogSelectPO(const EntitySupplier* supplier, QWidget* parent = nullptr)
        : SelectDocumentDialog(tr("Select Open Purchase Order Form"), new TabSelectPO(supplier), tr("Purchase Orders"),
                               parent)
    {}
};
