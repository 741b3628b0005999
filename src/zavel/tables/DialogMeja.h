#pragma once

#include "kor/widgets/KorDialog.h"

#include <memory>

namespace Ui
{
class DialogMeja;
}

/** The entry form of a table. */
class DialogMeja final : public KorDialog
{
    Q_OBJECT

public:
    explicit DialogMeja(QWidget* parent = nullptr);
    ~DialogMeja() override;

    bool validate() override;

private:
    std::unique_ptr<Ui::DialogMeja> m_ui;
};
