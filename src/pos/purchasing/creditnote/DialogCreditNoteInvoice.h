#pragma once

#include "pos/purchasing/document/PurchasingLineDialog.h"

/** The returned quantity of one purchase line. */
class DialogCreditNoteInvoice final : public PurchasingLineDialog
{
    Q_OBJECT

public:
    DialogCreditNoteInvoice(EntityPool& items, QWidget* parent);

    void setEntity(KorEntity* line) override;
};
