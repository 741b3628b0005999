#pragma once

#include "pos/cash/settlement/PartPaymentsDialog.h"

#include <memory>

class BusinessPurchases;

namespace Ui
{
class DialogPayment;
}

/** Pays a supplier: open purchases, what else the house bought, or both. */
class DialogPayment final : public PartPaymentsDialog
{
    Q_OBJECT

public:
    explicit DialogPayment(QWidget* parent = nullptr);
    ~DialogPayment() override;

    /** An open purchase that was paid or deleted meanwhile is paid only when the user says so again. */
    bool beforeAccept() override;
    KorEntity* getEntity() override;
    void setEntity(KorEntity* entity) override;

public slots:
    /** Whoever has said where the money comes from says next how it is paid. */
    void onCashAccountSelected();

protected:
    void showPerson(const EntityContact* person) override;
    [[nodiscard]] QList<KorEntity*> readOpenLines(const EntityContact& person) override;
    /** A purchase without an amount is only on offer. */
    [[nodiscard]] const KorEntity* lineWithoutAmount() const override { return nullptr; }
    void checkLines() override;
    [[nodiscard]] qint64 furtherAmount() const override;

private:
    /** The number of an open purchase that is paid here and due with less than shown; empty where there is none. */
    [[nodiscard]] QString changedPurchase() const;

    std::unique_ptr<Ui::DialogPayment> m_ui;
    BusinessPurchases* m_purchases;
};
