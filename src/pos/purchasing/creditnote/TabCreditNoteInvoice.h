#pragma once

#include "pos/purchasing/creditnote/DialogCreditNoteInvoice.h"
#include "pos/purchasing/creditnote/EntityCreditNoteDetail.h"
#include "pos/purchasing/creditnote/TableModelCreditNoteInvoice.h"
#include "pos/purchasing/document/SourceLinesTab.h"

/** The lines returned from a purchase, in the form of a credit note. */
class TabCreditNoteInvoice final : public PurchasingLinesOf<EntityCreditNoteDetail, TableModelCreditNoteInvoice,
                                                            DialogCreditNoteInvoice, SourceLinesTab>
{
    Q_OBJECT

public:
    explicit TabCreditNoteInvoice(QWidget* parent = nullptr);

protected:
    std::unique_ptr<SelectDocumentDialog> createSelection(const EntitySupplier* supplier) override;
    [[nodiscard]] QList<EntityPurchasingLine*> linesOfSource(const KorEntity& purchase) const override;
    [[nodiscard]] int sourceLineOf(const KorEntity& line) const override;
    void fillFrom(EntityPurchasingLine* line, const EntityPurchasingLine& bought) override;
    [[nodiscard]] QList<int> columnWidths() const override { return {92, 164, 56, 92, 84, 128, 112}; }
};
