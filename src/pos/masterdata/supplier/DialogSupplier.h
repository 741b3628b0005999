#pragma once

#include "pos/masterdata/contact/PayeeDialog.h"

#include <memory>

namespace Ui
{
class DialogSupplier;
}

/** The entry form of a supplier. */
class DialogSupplier final : public PayeeDialog
{
    Q_OBJECT

public:
    explicit DialogSupplier(QWidget* parent = nullptr);
    ~DialogSupplier() override;

    bool validate() override;

private:
    std::unique_ptr<Ui::DialogSupplier> m_ui;
};
