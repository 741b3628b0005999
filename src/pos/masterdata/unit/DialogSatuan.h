#pragma once

#include "kor/widgets/KorDialog.h"

#include <memory>

namespace Ui
{
class DialogSatuan;
}

/** The entry form of a unit. */
class DialogSatuan final : public KorDialog
{
    Q_OBJECT

public:
    explicit DialogSatuan(QWidget* parent = nullptr);
    ~DialogSatuan() override;

    bool validate() override;

private:
    std::unique_ptr<Ui::DialogSatuan> m_ui;
};
