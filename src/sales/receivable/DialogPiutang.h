#pragma once

#include "cash/settlement/SettlementDialog.h"

#include <memory>

class BusinessPenjualan;
class EntityPiutangDetail;
class MemberTextBox;

namespace Ui
{
class DialogPiutang;
}

/** Takes a member's payment for invoices that were left open. */
class DialogPiutang final : public SettlementDialog
{
    Q_OBJECT

public:
    explicit DialogPiutang(QWidget* parent = nullptr);
    ~DialogPiutang() override;

    KorEntity* getEntity() override;
    void setEntity(KorEntity* entity) override;

public slots:
    void onMemberSelected();

protected:
    [[nodiscard]] EntityContact* findPerson(const QString& code) override;
    void showPerson(const EntityContact* person) override;
    [[nodiscard]] QList<KorEntity*> readOpenLines(const EntityContact& person) override;
    [[nodiscard]] int documentIdOf(const KorEntity& line) const override;
    [[nodiscard]] QString documentNoOf(const KorEntity& line) const override;
    [[nodiscard]] const Money* amountOf(const KorEntity& line) const override;
    [[nodiscard]] const KorEntity* lineWithoutAmount() const override;

private:
    /** Those of which something is paid; the others are only on offer. */
    [[nodiscard]] QList<EntityPiutangDetail*> paidLines() const;

    std::unique_ptr<Ui::DialogPiutang> m_ui;
    BusinessPenjualan* m_sales;
    MemberTextBox* m_memberBox;
};
