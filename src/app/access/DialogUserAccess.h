#pragma once

#include "kor/widgets/KorDialog.h"

#include <memory>

namespace Ui
{
class DialogUserAccess;
}

/** The entry form of a group's right to one operation. */
class DialogUserAccess final : public KorDialog
{
    Q_OBJECT

public:
    explicit DialogUserAccess(QWidget* parent = nullptr);
    ~DialogUserAccess() override;

    bool validate() override;
    KorEntity* getEntity() override;
    void setEntity(KorEntity* entity) override;

private:
    std::unique_ptr<Ui::DialogUserAccess> m_ui;
};
