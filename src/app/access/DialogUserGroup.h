#pragma once

#include "kor/widgets/KorDialog.h"

#include <memory>

namespace Ui
{
class DialogUserGroup;
}

/** The entry form of a group of users. */
class DialogUserGroup final : public KorDialog
{
    Q_OBJECT

public:
    explicit DialogUserGroup(QWidget* parent = nullptr);
    ~DialogUserGroup() override;

    bool validate() override;
    KorEntity* getEntity() override;
    void setEntity(KorEntity* entity) override;

private:
    std::unique_ptr<Ui::DialogUserGroup> m_ui;
};
