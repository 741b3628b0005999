#pragma once

#include "pos/cash/settlement/PartPaymentsDialog.h"

#include <memory>

class BusinessPurchases;

namespace Ui
{
class DialogPayment;
}

/** Pays a supplier: open purchases, other expenses, or both. */
class DialogPayment final : public PartPaymentsDialog
{
    Q_OBJECT

public:
    explicit DialogPayment(QWidget* parent = nullptr);
    ~DialogPayment() override;

    /** Asks for confirmation if an open purchase was paid or deleted meanwhile. */
    bool beforeAccept() override;
    KorEntity* getEntity() override;
    void setEntity(KorEntity* entity) override;

public slots:
    /** Moves the focus to the payment type after the account was chosen. */
    void onCashAccountSelected();

protected:
    void showPerson(const EntityContact* person) override;
    [[nodiscard]] QList<KorEntity*> readOpenLines(const EntityContact& person) override;
    /** A purchase without an amount is only offered and no error. */
    [[nodiscard]] const KorEntity* lineWithoutAmount() const override { return nullptr; }
    void checkLines() override;
    [[nodiscard]] qint64 furtherAmount() const override;

private:
    /** The number of a paid purchase whose amount due is now less than shown; empty if there is none. */
    [[nodiscard]] QString changedPurchase() const;

    std::unique_ptr<Ui::DialogPayment> m_ui;
    BusinessPurchases* m_purchases;
};
