#pragma once

#include "pos/cash/settlement/SettlementDialog.h"

#include <memory>

class BusinessPenjualan;
class EntityAgent;

namespace Ui
{
class DialogKomisiAgen;
}

/** The payment form of an agent's commissions on several invoices; they are always paid in full. */
class DialogKomisiAgen final : public SettlementDialog
{
    Q_OBJECT

public:
    explicit DialogKomisiAgen(QWidget* parent = nullptr);
    ~DialogKomisiAgen() override;

    /** Starts a new payment for this agent; the agent is borrowed. */
    void openAgent(EntityAgent* agent);

    KorEntity* getEntity() override;
    void setEntity(KorEntity* entity) override;

public slots:
    void onAgentSelected();
    void on_txtPaid_textChanged(const QString& text);

protected:
    void showPerson(const EntityContact* person) override;
    [[nodiscard]] QList<KorEntity*> readOpenLines(const EntityContact& person) override;
    [[nodiscard]] int documentIdOf(const KorEntity& line) const override;
    [[nodiscard]] QString documentNoOf(const KorEntity& line) const override;
    [[nodiscard]] const Money* amountOf(const KorEntity& line) const override;
    [[nodiscard]] const KorEntity* lineWithoutAmount() const override;
    void checkAmounts() override;
    void totalChanged() override;

private:
    std::unique_ptr<Ui::DialogKomisiAgen> m_ui;
    BusinessPenjualan* m_sales;
};
