#pragma once

#include "pos/masterdata/contact/ContactDialog.h"

#include <memory>

namespace Ui
{
class DialogEmployee;
}

/** The entry form of an employee. */
class DialogEmployee final : public ContactDialog
{
    Q_OBJECT

public:
    explicit DialogEmployee(QWidget* parent = nullptr);
    ~DialogEmployee() override;

    bool validate() override;

private:
    std::unique_ptr<Ui::DialogEmployee> m_ui;
};
