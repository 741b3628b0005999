#pragma once

#include "kor/widgets/KorDialog.h"

#include <memory>

class ItemField;

namespace Ui
{
class DialogStokAwal;
}

/** The entry form of an item's beginning balance. The item of an existing balance cannot be changed. */
class DialogStokAwal final : public KorDialog
{
    Q_OBJECT

public:
    explicit DialogStokAwal(QWidget* parent = nullptr);
    ~DialogStokAwal() override;

    bool validate() override;
    void setEntity(KorEntity* entity) override;

private slots:
    /** Proposes the item's unit cost. */
    void onItemSelected();

private:
    std::unique_ptr<Ui::DialogStokAwal> m_ui;
    ItemField* m_item;
};
