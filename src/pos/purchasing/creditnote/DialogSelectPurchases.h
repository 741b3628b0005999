#pragma once

#include "pos/purchasing/creditnote/TabSelectPurchases.h"
#include "pos/purchasing/document/SelectDocumentDialog.h"

/** Lets the user choose the purchase whose goods are returned. */
class DialogSelectPurchases final : public SelectDocumentDialog
{
    Q_OBJECT

public:
    explicit DialogSelectPurchases(const EntitySupplier* supplier, QWidget* parent = nullptr)
        : SelectDocumentDialog(tr("Select Purchases"), new TabSelectPurchases(supplier), tr("Purchases"), parent)
    {}
};
