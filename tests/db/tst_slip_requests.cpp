#include "pos/invoice/EntityInvoiceDetail.h"
#include "pos/totals/InvoiceTotals.h"
#include "support/DatabaseTest.h"
#include "zavel/service/BusinessPenjualan.h"
#include "zavel/slips/ZavelReportFactory.h"

/** The slips that pages print, with settings and sales from the database. */
class TestSlipRequests : public DatabaseTest
{
    Q_OBJECT

protected:
    void prepare() override
    {
        insertShop(*m_database);
        run("TRUNCATE users, user_group, data_perusahaan, printer_type, appconfig CASCADE");
        insert("user_group", "id=1, name='admin'");
        insert("users", QString("id=%1, username='sari'").arg(AppContext::instance()->currentUserId()));
        insert("data_perusahaan", "nama_perusahaan='Warung', alamat='Jalan 1', phone='022'");
        insert("printer_type", "printer_type='EPSON-TM-T88III', cut_papper_cmd='27#109'");
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
        auto* table = known<EntityMeja>(1);
        table->setKode("T1");
        auto* order = new EntityMakanDitempat(m_records.get());
        order->setMeja(table);
        order->setPemesan("Ratna");
        order->setTgl(QDate::currentDate());
        EntityOrder::Lines details;
        for (int i = 0; i < lines; ++i) {
            auto* line = new EntityMakanDitempatDetail(m_records.get());
            line->setItem(known<EntityItem>(1));
            line->setQty(2);
            line->setPriceEach(rupiah(100));
            line->setTotal(rupiah(200));
            details.append(line);
        }
        order->setDetails(details);
        return sales()->insertNewOrder(order) ? sales()->findOrder(order->getId()) : nullptr;
    }

    EntityInvoiceMakanDitempat* sellAtTable(int lines)
    {
        auto* sale = new EntityInvoiceMakanDitempat(m_records.get());
        sale->setMakanDitempat(placeOrder(lines));
        Invoice* invoice = sale->getInvoice();
        invoice->setInvoiceDate(QDate::currentDate());
        invoice->setAcctCode("1-100");
        InvoiceTotals totals;
        totals.setCurrency("Rp");
        totals.setSubtotal(200 * lines);
        totals.setPaid(1000);
        totals.writeTo(invoice);
        QList<EntityInvoiceDetail*> details;
        for (int i = 0; i < lines; ++i) {
            auto* line = new EntityInvoiceDetail(sale);
            line->setItem(known<EntityItem>(1));
            line->setQty(2);
            line->setPriceEach(rupiah(100));
            line->recomputeTotal();
            details.append(line);
        }
        sale->setDetails(details);
        return sales()->insertInvoice(sale) ? sale : nullptr;
    }

    [[nodiscard]] QStringList jobs() const { return QDir(m_spool->path()).entryList({"*.slip"}, QDir::Files); }
    [[nodiscard]] QString slip(int number) const { return slips().value(number, "no such slip"); }

    [[nodiscard]] static BusinessPenjualan* sales() { return service<BusinessPenjualan>("Sales"); }
    [[nodiscard]] static ZavelReportFactory* factory() { return ZavelReportFactory::instance(); }
};

QTEST_MAIN(TestSlipRequests)
#include "tst_slip_requests.moc"
