#pragma once

#include "kor/widgets/KorDialog.h"

#include <memory>

namespace Ui
{
class DialogKeyTable;
}

/** The entry form of a running number. */
class DialogKeyTable final : public KorDialog
{
    Q_OBJECT

public:
    explicit DialogKeyTable(QWidget* parent = nullptr);
    ~DialogKeyTable() override;

    bool validate() override;

private:
    std::unique_ptr<Ui::DialogKeyTable> m_ui;
};
