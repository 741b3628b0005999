#pragma once

#include "pos/cash/settlement/PartPaymentsDialog.h"

#include <memory>

class BusinessPenjualan;

namespace Ui
{
class DialogPiutang;
}

/** Takes a member's payment for invoices that were left open. */
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
    /** Asks where the payment would take the place of another credit. */
    bool mayReplaceCredits();

    std::unique_ptr<Ui::DialogPiutang> m_ui;
    BusinessPenjualan* m_sales;
};
