#pragma once

#include "pos/masterdata/contact/PayeeDialog.h"

#include <memory>

namespace Ui
{
class DialogAgent;
}

/** The entry form of an agent. */
class DialogAgent final : public PayeeDialog
{
    Q_OBJECT

public:
    explicit DialogAgent(QWidget* parent = nullptr);
    ~DialogAgent() override;

    bool validate() override;

private:
    std::unique_ptr<Ui::DialogAgent> m_ui;
};
