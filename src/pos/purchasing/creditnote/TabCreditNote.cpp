#include "pos/purchasing/creditnote/TabCreditNote.h"

#include "pos/purchasing/creditnote/BusinessCreditNote.h"
#include "pos/purchasing/creditnote/DialogCreditNote.h"
#include "pos/purchasing/creditnote/TableModelCreditNote.h"

TabCreditNote::TabCreditNote(QWidget* parent)
    : PurchasingListTab({tr("Credit Notes"), "tblCreditNote", "Credit Note"},
                        {"ddlStatus",
                         tr("Status :"),
                         DialogCreditNote::statusRows(),
                         {{tr("Purchase No."), PurchasingFilter::DocumentNo},
                          {tr("Supplier Code"), PurchasingFilter::SupplierCode},
                          {tr("Invoice No."), PurchasingFilter::OtherNo}},
                         tr("Are you sure you want to delete Credit Note with No: %1 ?")},
                        parent)
{
    refresh();
}

QList<KorEntity*> TabCreditNote::readRows(const QString&)
{
    return asEntities(businessAs<BusinessCreditNote>()->findAll(chosen()));
}

KorEntityModel* TabCreditNote::createModel(const QList<KorEntity*>& rows)
{
    return new TableModelCreditNote(rows, this);
}

std::unique_ptr<KorDialog> TabCreditNote::createDialog() { return std::make_unique<DialogCreditNote>(this); }

QString TabCreditNote::notFoundText(int id) const { return tr("Can not find Credit Note with id: %1").arg(id); }

QString TabCreditNote::countText(int rows) const { return tr("%1 items").arg(rows); }

void TabCreditNote::modelApplied() { setColumnWidths(grid(), {120, 180, 340, 150, 160}); }
