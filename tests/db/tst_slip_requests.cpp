#include "pos/invoice/EntityInvoiceDetail.h"
#include "support/DatabaseTest.h"
#include "support/ShopRows.h"
#include "zavel/dinein/EntityInvoiceMakanDitempat.h"
#include "zavel/dinein/EntityMakanDitempat.h"
#include "zavel/dinein/EntityMakanDitempatDetail.h"
#include "zavel/service/BusinessPenjualan.h"
#include "zavel/slips/ZavelReportFactory.h"
#include "zavel/tables/EntityMeja.h"

#include <QDir>
#include <QFile>

/** The slips that pages print, with settings and sales from the database. */
class TestSlipRequests : public DatabaseTest
{
    Q_OBJECT

protected:
    void prepare() override
    {
        insertShop(*m_database);
        run("TRUNCATE users, user_group, data_perusahaan, printer_type, appconfig CASCADE");
        run("INSERT INTO user_group (id, name, version) VALUES (1, 'admin', 1)");
        run(QString("INSERT INTO users (id, first_name, last_name, username, password, user_group_id, currency, "
                    "version) VALUES (%1, 'Sari', 'Dewi', 'sari', '', 1, 'Rp', 1)")
                .arg(AppContext::instance()->currentUserId()));
        run("INSERT INTO data_perusahaan (nama_perusahaan, alamat, phone, version) "
            "VALUES ('Warung', 'Jalan 1', '022', 1)");
        run("INSERT INTO printer_type (printer_type, cash_drawer_cmd, cut_papper_cmd, version) VALUES "
            "('EPSON-TM-T88III', '', '27#109', 1)");
        addSetting("cashier_printer", R"("printer_name":"Kasir","printer_type":"EPSON-TM-T88III","auto_cutter":"Yes",
                                 "no_of_copy":"1","column_paper":"40","no_of_blank_lines":"2","notes":"Bye")");
        addKitchen("Dapur", "FOOD", "Yes");
        addKitchen("Bar", "", "No");
        addKitchen("Grill", "", "yes");
    }

private slots:
    void aTablesBillIsPrintedFromItsInvoice()
    {
        const EntityInvoiceMakanDitempat* sale = sellAtTable(1);
        QVERIFY2(sale, qPrintable(sales()->takeErrors()));
        factory()->printBillMakanDitempat(sale->getId());
        QCOMPARE(m_people->texts(), QStringList());
        QCOMPARE(jobs(), QStringList("000001-Kasir-Bill.slip"));
        const QString text = slip(0);
        for (const char* line :
             {"\nNo.    : TRD-0007\n", "\nCashier: sari\n", "\nGuest  : Ratna\n", "\nTable  : Window\n",
              "\nRice                 2     100       200\n", "\nChange        :                      800\n"})
            QVERIFY2(text.contains(line), qPrintable(line + text));
        QVERIFY(text.endsWith("\n                  Bye                   \n\n\x1Bm"));
    }

    void settingsCountFromTheNextSlipOn()
    {
        const EntityInvoiceMakanDitempat* sale = sellAtTable(1);
        QVERIFY(sale);
        factory()->printBillMakanDitempat(sale->getId());
        run("UPDATE appconfig SET appvalue = replace(replace(appvalue, '\"Kasir\"', '\"Bar\"'), "
            "'\"EPSON-TM-T88III\"', '\"GONE\"') WHERE appkey = 'cashier_printer'");
        factory()->printBillMakanDitempat(sale->getId());
        QCOMPARE(jobs(), QStringList({"000001-Kasir-Bill.slip", "000002-Bar-Bill.slip"}));
        QVERIFY(slip(0).endsWith("\x1Bm"));
        QCOMPARE(slip(1), slip(0).chopped(2)); // an unknown model has no cut sequence
    }

    void anOrderGoesToTheKitchensThatPrintByThemselves()
    {
        EntityMakanDitempat* order = placeOrder(2);
        QVERIFY2(order, qPrintable(sales()->takeErrors()));
        factory()->printMenuOrder(DineOrder, order);
        QCOMPARE(jobs(), QStringList("000001-Dapur-Menu.slip"));
        QVERIFY2(slip(0).contains("\n  2  RICE   Rice                     2  \n"), qPrintable(slip(0)));
        QVERIFY(slip(0).endsWith("     4  \n\x1Bm"));

        run("DELETE FROM appconfig WHERE appkey = 'kitchen_printer_Dapur'");
        factory()->printMenuOrder(DineOrder, order);
        QCOMPARE(jobs().size(), 1);
        QCOMPARE(m_people->texts(), QStringList());
    }

    void aReprintAndACancellationGoToAllKitchens()
    {
        EntityMakanDitempat* order = placeOrder(1);
        QVERIFY(order);
        factory()->reprintMenuOrder(DineOrder, order);
        QCOMPARE(jobs(), QStringList({"000001-Dapur-Menu.slip", "000002-Bar-Menu.slip", "000003-Grill-Menu.slip"}));
        factory()->printMenuOrderCanceled(DineOrder, order);
        QCOMPARE(jobs().size(), 6);
        QVERIFY(slip(5).contains("Order Cancelled.\n"));
    }

    void aRecapIsPrintedFromTheStoredOrder()
    {
        const EntityMakanDitempat* order = placeOrder(3);
        QVERIFY(order);
        factory()->printMakanDitempat(order->getId());
        QCOMPARE(jobs(), QStringList("000001-Kasir-Menu.slip"));
        QVERIFY2(slip(0).contains("\nTable  : Window\n"), qPrintable(slip(0)));
        QVERIFY(slip(0).contains("\nTotal                          :     6  \n"));
    }

    void aLongBillTakesNoMoreStatementsThanAShortOne()
    {
        const EntityInvoiceMakanDitempat* small = sellAtTable(1);
        const EntityInvoiceMakanDitempat* large = sellAtTable(30);
        QVERIFY(small && large);
        const auto statements = [](const EntityInvoiceMakanDitempat* sale) {
            const StatementCount count;
            factory()->printBillMakanDitempat(sale->getId());
            return count.count();
        };
        const int few = statements(small);
        QCOMPARE(statements(large), few);
        QVERIFY2(few <= 12, qPrintable(QString::number(few)));
    }

    void whatIsMissingIsToldInOneBox_data()
    {
        const auto row = addColumns<QString, QString>("statement", "text");
        row("company", "DELETE FROM data_perusahaan",
            "There is no company profile, so nothing can be printed at the cashier. Please enter it "
            "first.");
        row("cashier printer", "DELETE FROM appconfig WHERE appkey = 'cashier_printer'",
            "There are no settings of the cashier printer in this database, so nothing can "
            "be printed at the cashier.");
        row("sale", "DELETE FROM invoice", "Can not find entity with id: 4711");
    }
    void whatIsMissingIsToldInOneBox()
    {
        QFETCH(QString, statement);
        run(statement);
        sales()->addError("earlier", "an error that nobody has fetched");
        factory()->printBillMakanDitempat(4711);
        QTEST(m_people->lastText(), "text");
        QCOMPARE(m_people->lastTitle(), QString("Error"));
        QCOMPARE(m_people->boxes().size(), 1);
        factory()->printMakanDitempat(4711);
        QTEST(m_people->lastText(), "text");
        QCOMPARE(jobs(), QStringList());
    }

    void aKitchenCooksOnWithoutACashier()
    {
        EntityMakanDitempat* order = placeOrder(1);
        QVERIFY(order);
        run("DELETE FROM data_perusahaan");
        run("DELETE FROM appconfig WHERE appkey = 'cashier_printer'");
        factory()->printMenuOrder(DineOrder, order);
        QCOMPARE(m_people->texts(), QStringList());
        QCOMPARE(jobs(), QStringList("000001-Dapur-Menu.slip"));
        QVERIFY(slip(0).endsWith("  \n"));
    }

    void aLostDatabaseIsToldOnce()
    {
        m_database->killConnections();
        factory()->printBillMakanDitempat(1);
        QCOMPARE(m_people->boxes().size(), 1);
        QCOMPARE(m_people->lastTitle(), QString("Error"));
        QCOMPARE(jobs(), QStringList());
    }

private:
    void addSetting(const QString& key, const QString& members)
    {
        run(QString("INSERT INTO appconfig (appkey, is_json, appvalue, version) VALUES ('%1', true, '{%2}', 1)")
                .arg(key, members));
    }

    void addKitchen(const QString& name, const QString& types, const QString& autoPrint)
    {
        addSetting("kitchen_printer_" + name,
                   QString(R"("kitchen_name":"%1","printer_name":"%1","kode_jenis_item":"%2","auto_print":"%3",
                      "auto_cutter":"Yes","no_of_copy":"1","column_paper":"40","no_of_blank_lines":"0")")
                       .arg(name, types, autoPrint));
    }

    EntityMakanDitempat* placeOrder(int lines)
    {
        auto* table = new EntityMeja(m_records.get());
        table->setId(1);
        table->setKode("T1");
        auto* item = new EntityItem(m_records.get());
        item->setId(1);
        auto* order = new EntityMakanDitempat(m_records.get());
        order->setMeja(table);
        order->setPemesan("Ratna");
        order->setTgl(QDate::currentDate());
        EntityOrder::Lines details;
        for (int i = 0; i < lines; ++i) {
            auto* line = new EntityMakanDitempatDetail(m_records.get());
            line->setItem(item);
            line->setQty(2);
            line->setPriceEach(new Money(line, 100.0, "Rp"));
            line->setTotal(new Money(line, 200.0, "Rp"));
            details.append(line);
        }
        order->setDetails(details);
        return sales()->insertNewOrder(order) ? sales()->findOrder(order->getId()) : nullptr;
    }

    template <class Sale>
    Sale* sell(Sale* sale, int lines)
    {
        auto* item = new EntityItem(sale);
        item->setId(1);
        Invoice* invoice = sale->getInvoice();
        invoice->setInvoiceDate(QDate::currentDate());
        invoice->setAcctCode("1-100");
        const auto set = [invoice](void (Invoice::*setter)(Money*), double value) {
            (invoice->*setter)(new Money(invoice, value, "Rp"));
        };
        set(&Invoice::setSubtotal, 200 * lines);
        set(&Invoice::setDiscount, 0);
        set(&Invoice::setTax, 0);
        set(&Invoice::setService, 0);
        set(&Invoice::setGrandTotal, 200 * lines);
        set(&Invoice::setAmountPaid, 1000);
        set(&Invoice::setOtherPayment, 0);
        set(&Invoice::setNetDue, 200 * lines - 1000);
        QList<EntityInvoiceDetail*> details;
        for (int i = 0; i < lines; ++i) {
            auto* line = new EntityInvoiceDetail(sale);
            line->setItem(item);
            line->setQty(2);
            line->setPriceEach(new Money(line, 100.0, "Rp"));
            line->recomputeTotal();
            details.append(line);
        }
        sale->setDetails(details);
        return sales()->insertInvoice(sale) ? sale : nullptr;
    }

    EntityInvoiceMakanDitempat* sellAtTable(int lines)
    {
        auto* sale = new EntityInvoiceMakanDitempat(m_records.get());
        sale->setMakanDitempat(placeOrder(lines));
        return sell(sale, lines);
    }

    [[nodiscard]] QStringList jobs() const { return QDir(m_spool->path()).entryList({"*.slip"}, QDir::Files); }
    [[nodiscard]] QString slip(int number) const
    {
        QFile file(m_spool->filePath(jobs().value(number)));
        return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString("no such slip");
    }

    [[nodiscard]] static BusinessPenjualan* sales() { return service<BusinessPenjualan>("Sales"); }
    [[nodiscard]] static ZavelReportFactory* factory() { return ZavelReportFactory::instance(); }
};

QTEST_MAIN(TestSlipRequests)
#include "tst_slip_requests.moc"
