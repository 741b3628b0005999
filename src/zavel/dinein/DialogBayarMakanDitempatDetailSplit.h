#pragma once

#include "kor/widgets/KorDialog.h"

#include <memory>

class EntityInvoiceDetail;

namespace Ui
{
class DialogBayarMakanDitempatDetailSplit;
}

/** Splits a quantity of one line off for a group. The line is borrowed; only getEntity() writes to it. */
class DialogBayarMakanDitempatDetailSplit final : public KorDialog
{
    Q_OBJECT

public:
    explicit DialogBayarMakanDitempatDetailSplit(QWidget* parent = nullptr);
    ~DialogBayarMakanDitempatDetailSplit() override;

    bool validate() override;
    KorEntity* getEntity() override;
    void setEntity(KorEntity* line) override;

private:
    std::unique_ptr<Ui::DialogBayarMakanDitempatDetailSplit> m_ui;
    EntityInvoiceDetail* m_line = nullptr;
};
