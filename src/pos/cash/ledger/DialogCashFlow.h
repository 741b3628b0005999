#pragma once

#include "kor/widgets/KorDialog.h"

#include <memory>

class AccountField;

namespace Ui
{
class DialogCashFlow;
}

/** The entry form of the ledger: money that came in or went out without a document. */
class DialogCashFlow final : public KorDialog
{
    Q_OBJECT

public:
    explicit DialogCashFlow(QWidget* parent = nullptr);
    ~DialogCashFlow() override;

    bool validate() override;
    KorEntity* getEntity() override;
    void setEntity(KorEntity* entity) override;

public slots:
    void onBankSelected();

private:
    std::unique_ptr<Ui::DialogCashFlow> m_ui;
    AccountField* m_account;
};
