#include "app/context/AppContext.h"
#include "app/context/DatabaseManager.h"
#include "kor/business/KorServiceDirectory.h"
#include "pos/invoice/EntityInvoiceDetail.h"
#include "pos/masterdata/item/DataMapperItem.h"
#include "pos/registry/PosMapperRegistry.h"
#include "pos/totals/InvoiceTotals.h"
#include "support/TestDatabase.h"
#include "zavel/fastfood/EntityInvoiceFastFood.h"
#include "zavel/registry/ZavelBusinessRegistry.h"
#include "zavel/service/BusinessPenjualan.h"

#include <QCoreApplication>
#include <QTextStream>
#include <QThread>

namespace
{
/** Sells one item at the counter, paid. */
bool sell(BusinessPenjualan* sales, EntityItem* chicken, QString* number)
{
    EntityInvoiceFastFood sale;
    EntityInvoiceDetail line;
    line.setItem(chicken);
    line.setQty(1);
    line.setPriceEach(new Money(&line, 2, "Rp"));
    line.recomputeTotal();
    sale.setDetails({&line});
    InvoiceTotals totals;
    totals.setCurrency("Rp");
    totals.setSubtotal(2);
    totals.setPaid(2);
    totals.writeTo(sale.getInvoice());
    sale.getInvoice()->setInvoiceDate(QDate::currentDate());
    sale.getInvoice()->setAcctCode("1010");
    const bool saved = sales->insertInvoice(&sale);
    *number = sale.getInvoice()->getInvoiceNo();
    return saved;
}
} // namespace

/**
 * A separate workstation that sells without a pause: busy_till HOST PORT USER DATABASE. It prints the number of each
 * sale that was shown as saved. Failures are printed and tried again as a new sale, as a cashier would do.
 */
int main(int argc, char** argv)
{
    const QCoreApplication application(argc, argv);
    const QStringList words = QCoreApplication::arguments();
    auto* manager = new DatabaseManager;
    AppContext::instance()->setDatabaseManager(manager);
    ZavelBusinessRegistry::instance();
    loginAsAdmin();
    QTextStream out(stdout);
    if (words.size() != 5 || !manager->open(words[1], words[4], words[3], QString(), words[2].toInt())) {
        out << manager->lastErrorText() << Qt::endl;
        return 1;
    }
    auto* chicken = static_cast<EntityItem*>(PosMapperRegistry::instance()->itemMapper()->findByCode("aym"));
    auto* sales = service<BusinessPenjualan>("Sales");
    for (;;) {
        QString number;
        if (sell(sales, chicken, &number)) {
            out << "saved " << number << Qt::endl;
        } else {
            out << "failed " << sales->takeErrors().simplified() << Qt::endl;
            QThread::msleep(20);
        }
    }
}
