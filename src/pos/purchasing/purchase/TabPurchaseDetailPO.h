#pragma once

#include "pos/purchasing/document/SourceLinesTab.h"
#include "pos/purchasing/purchase/DialogPurchaseDetailPO.h"
#include "pos/purchasing/purchase/EntityAcquisitionDetail.h"
#include "pos/purchasing/purchase/TableModelPurchaseDetailPO.h"

/** The lines received from an order, in the form of a purchase. */
class TabPurchaseDetailPO final : public PurchasingLinesOf<EntityAcquisitionDetail, TableModelPurchaseDetailPO,
                                                           DialogPurchaseDetailPO, SourceLinesTab>
{
    Q_OBJECT

public:
    explicit TabPurchaseDetailPO(QWidget* parent = nullptr);

public slots:
    void on_btnSelectPO_clicked();

protected:
    std::unique_ptr<SelectDocumentDialog> createSelection(const EntitySupplier* supplier) override;
    [[nodiscard]] QList<EntityPurchasingLine*> linesOfSource(const KorEntity& order) const override;
    [[nodiscard]] int sourceLineOf(const KorEntity& line) const override;
    void fillFrom(EntityPurchasingLine* line, const EntityPurchasingLine& ordered) override;
    [[nodiscard]] QList<int> columnWidths() const override { return {60, 120, 88, 96, 66, 122, 104}; }
};
