#pragma once

#include "kor/widgets/KorDialog.h"

#include <memory>

namespace Ui
{
class DialogUser;
}

/** The entry form of a user. */
class DialogUser final : public KorDialog
{
    Q_OBJECT

public:
    explicit DialogUser(QWidget* parent = nullptr);
    ~DialogUser() override;

    bool validate() override;
    KorEntity* getEntity() override;
    void setEntity(KorEntity* entity) override;

private:
    std::unique_ptr<Ui::DialogUser> m_ui;
};
