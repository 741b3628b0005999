#pragma once

#include "pos/purchasing/creditnote/EntityCreditNoteDetail.h"
#include "pos/purchasing/document/PurchasingLinesModel.h"

/** The lines of a purchase with the returned quantities. */
class TableModelCreditNoteInvoice final : public PurchasingLinesModel
{
    Q_OBJECT

public:
    TableModelCreditNoteInvoice(const QList<KorEntity*>& lines, QObject* parent) : PurchasingLinesModel(lines, parent)
    {
        using Line = EntityCreditNoteDetail;
        addItem();
        addField<Line>(
            QMetaType::Int, tr("Qty"), [](const Line& line) { return QString::number(line.getQty()); }, RightAligned);
        addQuantity(tr("Returned"));
        addUnit();
        addUnitPrice();
        addDiscount(tr("Discount"));
        addAmount();
    }
};
