#pragma once

#include "kor/widgets/KorDialog.h"

#include <memory>

class AccountField;

namespace Ui
{
class DialogTransaction;
}

/** The entry form of a transfer between accounts. */
class DialogTransaction final : public KorDialog
{
    Q_OBJECT

public:
    explicit DialogTransaction(QWidget* parent = nullptr);
    ~DialogTransaction() override;

    bool validate() override;

public slots:
    void onFromAccountSelected();
    void onToAccountSelected();

private:
    std::unique_ptr<Ui::DialogTransaction> m_ui;
    AccountField* m_from;
    AccountField* m_to;
};
