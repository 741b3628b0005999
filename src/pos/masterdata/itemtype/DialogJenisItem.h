#pragma once

#include "kor/widgets/KorDialog.h"

#include <memory>

namespace Ui
{
class DialogJenisItem;
}

/** The entry form of an item type. */
class DialogJenisItem final : public KorDialog
{
    Q_OBJECT

public:
    explicit DialogJenisItem(QWidget* parent = nullptr);
    ~DialogJenisItem() override;

    bool validate() override;

private:
    std::unique_ptr<Ui::DialogJenisItem> m_ui;
};
