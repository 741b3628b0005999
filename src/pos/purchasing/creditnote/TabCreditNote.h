#pragma once

#include "pos/purchasing/document/PurchasingListTab.h"

/** The list of credit notes. */
class TabCreditNote final : public PurchasingListTab
{
    Q_OBJECT

public:
    explicit TabCreditNote(QWidget* parent = nullptr);

protected:
    QList<KorEntity*> readRows(const QString& filter) override;
    KorEntityModel* createModel(const QList<KorEntity*>& rows) override;
    std::unique_ptr<KorDialog> createDialog() override;
    [[nodiscard]] QString notFoundText(int id) const override;
    [[nodiscard]] QString countText(int rows) const override;
    void modelApplied() override;
};
