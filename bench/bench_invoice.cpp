#include "BenchMain.h"

#include "app/numbers/DataMapperKey.h"
#include "app/registry/AppMapperRegistry.h"
#include "kor/business/KorServiceDirectory.h"
#include "kor/entity/KorMetaDataMap.h"
#include "pos/invoice/DataMapperInvoice.h"
#include "pos/invoice/EntityInvoiceDetail.h"
#include "pos/registry/PosMapperRegistry.h"
#include "zavel/dinein/DataMapperInvoiceMakanDitempat.h"
#include "zavel/dinein/EntityInvoiceMakanDitempat.h"
#include "zavel/registry/ZavelMapperRegistry.h"
#include "zavel/service/BusinessPenjualan.h"

// Saving a dine-in invoice: number, invoice, link, 10 lines, and the order's status.

namespace
{
constexpr int lineCount = 10;

/** The sale as the payment form passes it; each save pays another order. */
class Sale
{
public:
    void prepare()
    {
        m_holder = std::make_unique<QObject>();
        QObject* parent = m_holder.get();
        m_link = new EntityInvoiceMakanDitempat(parent);
        auto* order = new EntityMakanDitempat(parent);
        order->setId(nextOrder());
        order->setStatus(EntityOrder::UNPAID);
        m_link->setMakanDitempat(order);
        Invoice* invoice = m_link->getInvoice();
        invoice->setInvoiceDate(QDate::currentDate());
        invoice->setPemesan("Guest");
        invoice->setAcctCode("1010");
        const auto money = [](double amount) { return Money(nullptr, amount, "Rp"); };
        Money total = money(250000);
        Money nothing = money(0);
        for (auto setter : {&Invoice::setSubtotal, &Invoice::setGrandTotal, &Invoice::setAmountPaid})
            (invoice->*setter)(&total);
        for (auto setter : {&Invoice::setDiscount, &Invoice::setTax, &Invoice::setNetDue, &Invoice::setOtherPayment,
                            &Invoice::setService})
            (invoice->*setter)(&nothing);
        auto* item = new EntityItem(parent);
        item->setId(1);
        Money price = money(25000);
        QList<EntityInvoiceDetail*> lines;
        for (int i = 0; i < lineCount; ++i) {
            auto* line = new EntityInvoiceDetail(parent);
            line->setItem(item);
            line->setQty(1);
            line->setPriceEach(&price);
            line->setTotal(&price);
            lines.append(line);
        }
        m_link->setDetails(lines);
    }
    void save()
    {
        auto* sales = service<BusinessPenjualan>("Sales");
        if (!sales->insertInvoice(m_link))
            qFatal("the sale was not saved: %s", qPrintable(sales->takeErrors()));
    }
    static int nextOrder()
    {
        static int last = 0;
        return ++last;
    }

private:
    std::unique_ptr<QObject> m_holder;
    EntityInvoiceMakanDitempat* m_link = nullptr;
};

QString insertStatement(const KorDataMapper& mapper)
{
    QStringList names;
    QStringList marks;
    for (const KorColumnMap* column : mapper.metaData()->columns()) {
        names.append(column->columnName());
        marks.append("?");
    }
    return "insert into " + mapper.tableName() + " (" + names.join(", ") + ", createdBy,createdTime,version) values(" +
           marks.join(", ") + ", ?,now(),?) returning id";
}

QString updateStatement(const KorDataMapper& mapper)
{
    QString assignments;
    for (const KorColumnMap* column : mapper.metaData()->columns())
        assignments += column->columnName() + "=?, ";
    return "update " + mapper.tableName() + " set " + assignments +
           " updatedBy = ?, updatedTime = now(),version = version+1 where id = ? and version = ?";
}

std::string firstId(const ByHand::Result& result) { return PQgetvalue(result.get(), 0, 0); }

void saveByHand(ByHand& byHand, int orderNumber)
{
    const std::string order = std::to_string(orderNumber);
    const std::string today = QDate::currentDate().toString(Qt::ISODate).toStdString();
    byHand.run("BEGIN");
    const PlainRow key = ByHand::rows(byHand.execute("key", {"TRD"}).get()).front();
    // In the order of the columns: id, createdBy, updatedBy, version, next_id, increment_by, no_zero.
    const int number = key.integers[4];
    byHand.execute("draw", {"TRD", std::to_string(number + 1), "1", "TRDMMyy", "Dine Invoice Key", "4", "1",
                            std::to_string(key.integers[0]), std::to_string(key.integers[3])});
    const std::string no = QDateTime::currentDateTime().toString("TRDMMyy").toStdString() + std::to_string(number);
    const std::string invoice =
        firstId(byHand.execute("invoice", {today, no,  "",   "1",      "TRD",   "Rp",     "250000", "0", "Rp", "0", "0",
                                           "Rp",  "0", "Rp", "250000", "Rp",    "250000", "Rp",     "0", "Rp", "0", "0",
                                           "Rp",  "0", "",   "",       "Guest", "",       "1010",   "1", "1"}));
    byHand.execute("link", {invoice, order, "", "", "", "1", "1"});
    for (int i = 0; i < lineCount; ++i)
        byHand.execute("line", {invoice, "1", "1", "Rp", "25000", "Rp", "0", "Rp", "25000", "1", "1"});
    byHand.run("COMMIT");
    double paid = 0;
    for (const PlainRow& row : ByHand::rows(byHand.execute("money", {order}).get()))
        paid += row.amounts.front();
    if (paid <= 0)
        qFatal("the sale is not what was saved");
    const ByHand::Result updated = byHand.execute("status", {"4", "1", order, "1"});
    if (std::string(PQcmdTuples(updated.get())) != "1")
        qFatal("the order's status was not set");
}
} // namespace

void setUp(TestDatabase& database, ByHand& byHand)
{
    database.run("INSERT INTO meja (kode, nama, createdby, createdtime, version) VALUES ('T1', 'Table', 1, now(), 1)");
    database.run("INSERT INTO makan_ditempat (status, meja_id, pemesan, tgl, createdby, createdtime, version) "
                 "SELECT 7, (SELECT max(id) FROM meja), 'Guest', current_date, 1, now(), 1 FROM "
                 "generate_series(1, 20000)");
    database.run("ANALYZE");

    const ZavelMapperRegistry* mappers = ZavelMapperRegistry::instance();
    const DataMapperInvoiceMakanDitempat* links = mappers->invoiceMakanDitempatMapper();
    const DataMapperInvoice* invoices = PosMapperRegistry::instance()->invoiceMapper();
    const DataMapperKey* keys = AppMapperRegistry::instance()->keyMapper();
    byHand.prepare("key", keys->selectStatement() + " where key_name = :keyname");
    byHand.prepare("draw", updateStatement(*keys));
    byHand.prepare("invoice", insertStatement(*invoices));
    byHand.prepare("link", insertStatement(*links));
    byHand.prepare("line", insertStatement(*invoices->detailMapper()));
    byHand.prepare("money",
                   links->selectStatement() + " where makan_ditempat_id = :id order by invoice_makan_ditempat.id");
    byHand.prepare("status", "update makan_ditempat set status = :status, updatedBy = :user, updatedTime = now(), "
                             "version = version+1 where id = :id and version = :version");

    const auto sale = std::make_shared<Sale>();
    enter({"Save a dine-in invoice of 10 lines", [sale] { sale->save(); },
           [&byHand] { saveByHand(byHand, Sale::nextOrder()); }, [sale] { sale->prepare(); }, 30});
}
