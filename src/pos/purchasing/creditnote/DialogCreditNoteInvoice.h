#pragma once

#include "pos/purchasing/document/PurchasingLineDialog.h"

/** What goes back of one line of a purchase. */
class DialogCreditNoteInvoice final : public PurchasingLineDialog
{
    Q_OBJECT

public:
    DialogCreditNoteInvoice(EntityPool& items, QWidget* parent);

    void setEntity(KorEntity* line) override;
};
