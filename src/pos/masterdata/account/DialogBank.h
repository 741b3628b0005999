#pragma once

#include "kor/widgets/KorDialog.h"

#include <memory>

namespace Ui
{
class DialogBank;
}

/** The entry form of an account. */
class DialogBank final : public KorDialog
{
    Q_OBJECT

public:
    explicit DialogBank(QWidget* parent = nullptr);
    ~DialogBank() override;

    bool validate() override;
    void setEntity(KorEntity* entity) override;

private:
    std::unique_ptr<Ui::DialogBank> m_ui;
};
