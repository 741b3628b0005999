#pragma once

#include "app/context/EntityPool.h"
#include "kor/widgets/KorDialog.h"

#include <memory>

class TabGLAccounts;
class TabSubItem;

namespace Ui
{
class DialogItem;
}

/** The entry form of an item: its data, components and ledger accounts. */
class DialogItem final : public KorDialog
{
    Q_OBJECT

public:
    explicit DialogItem(QWidget* parent = nullptr);
    ~DialogItem() override;

    bool validate() override;
    KorEntity* getEntity() override;
    void setEntity(KorEntity* entity) override;

private slots:
    /** Does nothing: the other radio button reports the change. */
    void on_rbStok_toggled(bool) {}
    void on_rbService_toggled(bool checked);
    void on_cbGabungan_toggled(bool checked);
    void on_cbGabungan_clicked();

private:
    void fillCombos();
    void showDefaultAccounts();
    void showAccounts();
    void setComponentsEnabled(bool enabled);

    std::unique_ptr<Ui::DialogItem> m_ui;
    EntityPool m_read;
    TabSubItem* m_components;
    TabGLAccounts* m_accounts;
};
