#include "pos/purchasing/payment/TabPayment.h"

#include "app/persistence/AppDocumentLines.h"
#include "pos/cash/settlement/PaymentType.h"
#include "pos/purchasing/payment/BusinessPayment.h"
#include "pos/purchasing/payment/DialogPayment.h"
#include "pos/purchasing/payment/EntityPayment.h"
#include "pos/purchasing/payment/TableModelPayment.h"

// The texts of this page say purchase invoices instead of payments. Kept, because users know them.

TabPayment::TabPayment(QWidget* parent)
    : PurchasingListTab({tr("Pay Bills"), "tblPayment", "Payment"},
                        {"ddlPaymentType",
                         tr("Payment Type :"),
                         supplierPaymentTypeRows(),
                         {{tr("Purchase Invoice No."), PurchasingFilter::DocumentNo},
                          {tr("Supplier Code"), PurchasingFilter::SupplierCode},
                          {tr("Check No"), PurchasingFilter::OtherNo}},
                         tr("Are you sure you want to delete purchase invoice with No: %1 ?")},
                        parent)
{
    refresh();
}

QList<KorEntity*> TabPayment::readRows(const QString&)
{
    return asEntities(businessAs<BusinessPayment>()->findAll(chosen()));
}

KorEntityModel* TabPayment::createModel(const QList<KorEntity*>& rows) { return new TableModelPayment(rows, this); }

void TabPayment::modelApplied() { setColumnWidths(grid(), {170, 130, 360}); }

std::unique_ptr<KorDialog> TabPayment::createDialog() { return std::make_unique<DialogPayment>(this); }

QString TabPayment::notFoundText(int id) const { return tr("Can not find purchase invoice with id: %1").arg(id); }
