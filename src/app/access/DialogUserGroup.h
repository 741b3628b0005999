#pragma once

#include "kor/widgets/KorDialog.h"

#include <memory>

namespace Ui
{
class DialogUserGroup;
}

/** The entry form of a user group. */
class DialogUserGroup final : public KorDialog
{
    Q_OBJECT

public:
    explicit DialogUserGroup(QWidget* parent = nullptr);
    ~DialogUserGroup() override;

    bool validate() override;

private:
    std::unique_ptr<Ui::DialogUserGroup> m_ui;
};
