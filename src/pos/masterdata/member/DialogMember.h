#pragma once

#include "pos/masterdata/contact/ContactDialog.h"

#include <memory>

namespace Ui
{
class DialogMember;
}

/** The entry form of a member. */
class DialogMember final : public ContactDialog
{
    Q_OBJECT

public:
    explicit DialogMember(QWidget* parent = nullptr);
    ~DialogMember() override;

    bool validate() override;

private:
    std::unique_ptr<Ui::DialogMember> m_ui;
};
