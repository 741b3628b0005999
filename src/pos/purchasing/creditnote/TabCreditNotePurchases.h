#pragma once

#include "pos/purchasing/creditnote/DialogCreditNotePurchases.h"
#include "pos/purchasing/creditnote/EntityCreditNoteDetail.h"
#include "pos/purchasing/creditnote/TableModelCreditNotePurchases.h"
#include "pos/purchasing/document/PurchasingLinesTab.h"

/** The items returned without a purchase, in the form of a credit note. */
class TabCreditNotePurchases final
    : public PurchasingLinesOf<EntityCreditNoteDetail, TableModelCreditNotePurchases, DialogCreditNotePurchases>
{
    Q_OBJECT

public:
    explicit TabCreditNotePurchases(QWidget* parent = nullptr) : PurchasingLinesOf(parent) { refresh(); }

protected:
    [[nodiscard]] QString updateQuestion() const override
    {
        return tr("This item: %1 is already exist in the list. Do you want to update it with this data?");
    }
};
