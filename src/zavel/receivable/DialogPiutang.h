#pragma once

#include "pos/cash/settlement/PartPaymentsDialog.h"

#include <memory>

class BusinessPenjualan;

namespace Ui
{
class DialogPiutang;
}

/** The payment form for a member's open invoices. */
class DialogPiutang final : public PartPaymentsDialog
{
    Q_OBJECT

public:
    explicit DialogPiutang(QWidget* parent = nullptr);
    ~DialogPiutang() override;

    KorEntity* getEntity() override;
    void setEntity(KorEntity* entity) override;
    bool beforeAccept() override;

protected:
    [[nodiscard]] QList<KorEntity*> readOpenLines(const EntityContact& person) override;
    [[nodiscard]] const KorEntity* lineWithoutAmount() const override;

private:
    /** Asks first if the payment would replace another credit. */
    bool mayReplaceCredits();

    std::unique_ptr<Ui::DialogPiutang> m_ui;
    BusinessPenjualan* m_sales;
};
