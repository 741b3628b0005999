#pragma once

#include "app/widgets/AppFilterBar.h"
#include "pos/purchasing/document/PurchasingDialog.h"

#include <memory>

class TabCreditNoteInvoice;
class TabCreditNotePurchases;

namespace Ui
{
class DialogCreditNote;
}

/** The form of a credit note: goods returned to a supplier, with or without a purchase, and the refunded money. */
class DialogCreditNote final : public PurchasingDialog
{
    Q_OBJECT

public:
    explicit DialogCreditNote(QWidget* parent = nullptr);
    ~DialogCreditNote() override;

    KorEntity* getEntity() override;
    void setEntity(KorEntity* entity) override;

    /** The statuses of a note, for combo boxes. */
    [[nodiscard]] static AppFilterBar::Rows statusRows();

protected:
    [[nodiscard]] PurchasingLines allLines() const override;
    void checkLines() override;
    void checkMoney() override;
    void supplierChanged() override;

private:
    void showStatus();
    void showPurchase();

    std::unique_ptr<Ui::DialogCreditNote> m_ui;
    TabCreditNoteInvoice* m_ofPurchase;
    TabCreditNotePurchases* m_free;
    int m_shownPurchaseId = KorNoValue;
};
