#include "app/context/AppContext.h"
#include "app/context/EntityUser.h"
#include "pos/invoice/EntityInvoiceDetail.h"
#include "pos/masterdata/company/EntityDataPerusahaan.h"
#include "pos/printing/configuration/EntityConfigCashierPrinter.h"
#include "pos/printing/configuration/EntityConfigKitchenPrinter.h"
#include "pos/printing/printer/EntityPrinterType.h"
#include "support/Golden.h"
#include "support/ModalDriver.h"
#include "support/Rows.h"
#include "zavel/dinein/EntityInvoiceMakanDitempat.h"
#include "zavel/dinein/EntityMakanDitempatDetail.h"
#include "zavel/fastfood/EntityInvoiceFastFood.h"
#include "zavel/slips/ReportBillBawaPulang.h"
#include "zavel/slips/ReportBillFastFood.h"
#include "zavel/slips/ReportBillMakanDitempat.h"
#include "zavel/slips/ReportMakanDitempat.h"
#include "zavel/slips/ReportMenuOrder.h"
#include "zavel/takeaway/EntityBawaPulangDetail.h"
#include "zavel/takeaway/EntityInvoiceBawaPulang.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

Q_DECLARE_METATYPE(std::function<void()>)

/** What comes out of the printers, byte by byte: an evening at one restaurant. */
class TestSlips final : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_spool = std::make_unique<QTemporaryDir>();
        qputenv("ZAVEL_SPOOL_DIR", QFile::encodeName(m_spool->path()));
        AppContext::instance()->setLocale("en_US");
        m_records = std::make_unique<QObject>();
        m_now = QDateTime(QDate(2026, 11, 22), QTime(19, 45, 30));

        m_company = make<EntityDataPerusahaan>();
        m_company->setNamaPerusahaan("Warung Sederhana");
        m_company->setAlamat("Jl. Kenanga 7, Bandung");
        m_company->setTelp("022-5550100");
        m_cashier = printer<EntityConfigCashierPrinter>("Kasir");
        m_cashier->setNotes("Thank You");
        m_printerType = make<EntityPrinterType>();
        m_printerType->setCutPapperCmd("29#V#66#0");
        m_user = make<EntityUser>();
        m_user->setUserName("sari");
        m_member = make<EntityMember>();
        m_member->setNama("Budi Santoso");
        m_member->setKode("M-017");

        auto* table = make<EntityMeja>();
        table->setKode("T5");
        table->setNama("Window 5");
        m_order = make<EntityMakanDitempat>();
        m_order->setId(42);
        m_order->setMeja(table);
        m_order->setPemesan("Ibu Ratna");
        m_order->setCreatedTime(m_now.addSecs(-5400));
        m_order->setUpdatedTime(m_now.addSecs(-61));
        m_order->setDetails(
            {orderedLine<EntityMakanDitempatDetail>(item("NSG01", "Nasi goreng", "FOOD"), 2, "no chili"),
             orderedLine<EntityMakanDitempatDetail>(item("TEH", "Teh manis", "DRINK"), 3),
             orderedLine<EntityMakanDitempatDetail>(item("SATE-AYAM", "Sate ayam bumbu kacang", "GRILL"), 10)});

        m_invoice = make<Invoice>();
        m_invoice->setInvoiceNo("TRD112600017");
        m_invoice->setCreatedTime(m_now);
        m_bill = BillData();
        m_bill.company = m_company;
        m_bill.printer = m_cashier;
        m_bill.invoice = m_invoice;
        m_bill.cashier = "sari";
        m_bill.guest = "Ibu Ratna";
        m_bill.table = table;
        m_bill.lines = {soldLine("Nasi goreng", 2, 18500), soldLine("Teh manis", 3, 5000)};
        settle(m_invoice, 60000, 0);
    }

    void cleanup()
    {
        m_records.reset();
        qunsetenv("ZAVEL_SPOOL_DIR");
    }

    void billsAreComposedLineByLine_data()
    {
        addColumns<std::function<void()>, int>("arrange", "kind");
        const auto sale = [](const char* name, int kind, const std::function<void()>& arrange) {
            addRow(name, arrange, kind);
        };
        const auto row = [sale](const char* name, const std::function<void()>& arrange) { sale(name, 0, arrange); };
        row("bill_dine_overpaid", [] {});
        row("bill_dine_member", [this] { m_bill.member = m_member; });
        row("bill_dine_part_paid", [this] { settle(m_invoice, 20000, 10000); });
        row("bill_dine_paid_exactly", [this] { settle(m_invoice, 56700, 0); });
        row("bill_dine_on_credit", [this] { settle(m_invoice, 0, 56700); });
        row("bill_dine_narrow_paper", [this] { m_cashier->setColumnPaper("32"); });
        row("bill_dine_address_of_two_lines", [this] { m_company->setAlamat("Jl. Kenanga 7\nBandung 40115"); });
        row("bill_dine_no_width", [this] { m_cashier->setColumnPaper("wide"); });
        row("bill_dine_no_notes", [this] {
            m_cashier->setNotes("");
            m_cashier->setNoOfBlankLines("2");
        });
        row("bill_dine_long_names_and_amounts", [this] {
            m_company->setAlamat("Jl. Jenderal Sudirman Kavling 52-53, Jakarta Selatan");
            m_bill.lines = {soldLine("Ikan bakar rica", 1, 65000), soldLine("Ikan bakar rica-rica", 12, 1250000),
                            soldLine(QString::fromUtf8("Crème brûlée"), 123456, 9999)};
            settle(m_invoice, 1500000000, 0);
        });
        row("bill_dine_indonesian_amounts", [this] {
            AppContext::instance()->setLocale("id_ID");
            settle(m_invoice, 60000, 0);
            m_bill.lines = {soldLine("Nasi goreng", 2, 18500)};
        });
        sale("bill_fast_food", 1, [] {});
        sale("bill_fast_food_member_part_paid_narrow_paper", 1, [this] {
            m_bill.member = m_member;
            m_cashier->setColumnPaper("32");
            settle(m_invoice, 20000, 10000);
        });
        sale("bill_fast_food_overpaid_long_names", 1, [this] {
            m_bill.guest = "Rombongan karyawan kantor kelurahan Kebayoran Baru";
            m_member->setNama("Bapak Raden Mas Budi Santoso Kusumawardhana");
            m_bill.member = m_member;
            m_bill.lines = {soldLine("Ayam goreng pak", 1, 25000), soldLine("Ayam goreng paket komplit", 120, 999999)};
            settle(m_invoice, 150000000, 0);
        });
        sale("bill_take_away", 2, [] {});
        sale("bill_take_away_member_part_paid", 2, [this] {
            m_bill.member = m_member;
            settle(m_invoice, 50000, 0);
        });
        sale("bill_take_away_narrow_long_names", 2, [this] {
            m_bill.guest = "The whole office on the third floor, Pak Joko";
            m_cashier->setColumnPaper("32");
            m_bill.lines = {soldLine("Sate ayam bumbu kacang", 10, 42000)};
            settle(m_invoice, 400000, 60000);
        });
    }
    void billsAreComposedLineByLine()
    {
        QFETCH(std::function<void()>, arrange);
        QFETCH(int, kind);
        if (kind > 0)
            m_bill.table = nullptr;
        arrange();
        const QString text = kind == 0   ? composeDineBill(m_bill)
                             : kind == 1 ? composeFastFoodBill(m_bill)
                                         : composeTakeAwayBill(m_bill);
        compare(QString(QTest::currentDataTag()) + ".txt", text);
    }

    void kitchenSlipsAreComposedLineByLine_data()
    {
        using Arrange = std::function<void()>;
        addColumns<std::function<void()>, QString>("arrange", "types");
        QTest::addColumn<QString>("printed"); // a golden file, or nothing where the kitchen gets no slip
        const auto row = [](
                             const char* name, const QString& types, const QString& printed,
                             const Arrange& arrange = [] {}) { addRow(name, arrange, types, printed); };
        row("everything", "", "kitchen_all.txt");
        row("two types of three", "FOOD,GRILL", "kitchen_two_types.txt");
        row("a blank behind the comma", "GRILL, FOOD", "kitchen_one_type.txt");
        row("codes mind the letter case", "grill,Food", "");
        row("nothing for this kitchen", "DESSERT", "");
        row("a comma alone", ",", "");
        row("an order without lines", "", "", [this] { m_order->setDetails({}); });
        row("changed lines", "", "kitchen_changed.txt", [this] {
            m_order->setMember(m_member);
            m_order->setDetails(
                {orderedLine<EntityMakanDitempatDetail>(item("TEH", "Teh manis", "DRINK"), 4, "less sugar",
                                                        EntityOrderDetail::UPDATED),
                 orderedLine<EntityMakanDitempatDetail>(item("SOTO1", "Soto betawi kuah su", "FOOD"), 1, "",
                                                        EntityOrderDetail::UPDATED),
                 orderedLine<EntityMakanDitempatDetail>(item("KOPI", "Kopi tubruk", "DRINK"), 12345678,
                                                        "this wish is longer than the paper is wide at this kitchen")});
        });
        row("what a changed line was", "", "kitchen_former.txt", [this] {
            EntityOrderDetail* line = orderedLine<EntityMakanDitempatDetail>(item("TEH", "Teh manis", "DRINK"), 4,
                                                                             "less sugar", EntityOrderDetail::UPDATED);
            line->setFormer({2, 6, "much sugar"});
            m_order->setDetails({line});
        });
        row("moved twice", "DRINK", "kitchen_moved.txt", [this] { m_order->setPindahMeja("T3>T4"); });
        row("just entered", "DRINK", "kitchen_new.txt", [this] {
            m_order->setCreatedTime(QDateTime());
            m_order->setUpdatedTime(QDateTime());
        });
    }
    void kitchenSlipsAreComposedLineByLine()
    {
        QFETCH(std::function<void()>, arrange);
        FETCH(QString, types, printed);
        arrange();
        // If the former state of a line is unknown, the slip does not show it.
        EntityConfigKitchenPrinter* cook = kitchen("Dapur", types);
        cook->setSayFormer("Yes");
        const std::optional<QString> text = composeMenuOrder({cook, m_order, DineOrder, m_now});
        QCOMPARE(text.has_value(), !printed.isEmpty());
        if (text)
            compare(printed, *text);
    }

    void recapsTakeAwaysAndCancellationsAreComposed()
    {
        compare("recap.txt", composeOrderRecap(*m_order, *m_company, *m_cashier));
        // The tea was taken off, and two of ten skewers.
        EntityOrder::Lines lines = m_order->getDetails();
        for (int place = 0; place < lines.size(); ++place)
            lines.at(place)->getItem()->setId(place);
        m_order->takeSnapshot();
        lines.at(2)->setQty(8);
        m_order->setDetails({lines.at(0), lines.at(2)});
        m_order->compareWithSnapshot();
        const auto change = [this](const QString& types) {
            return KitchenSlipData{kitchen("Dapur", types), m_order, DineOrder, m_now};
        };
        compare("kitchen_taken_back.txt", composeTakenBack(change({})).value_or("no slip"));
        compare("kitchen_moved_alone.txt", composeMove(change({}), "T3").value_or("no slip"));
        for (const auto& slip : {composeTakenBack(change("FOOD")), composeMove(change("DRINK"), "T3")})
            QCOMPARE(slip.value_or("no slip"), QString("no slip"));

        EntityBawaPulang takeAway;
        takeAway.setId(305);
        takeAway.setPemesan("Pak Joko");
        takeAway.setCreatedTime(m_now.addDays(-1));
        takeAway.setUpdatedTime(m_now.addSecs(5));
        takeAway.setDetails({orderedLine<EntityBawaPulangDetail>(item("NSG01", "Nasi goreng", "FOOD"), 1)});
        KitchenSlipData slip{kitchen("Dapur"), &takeAway, TakeAwayOrder, m_now};
        compare("kitchen_take_away.txt", composeMenuOrder(slip).value_or("no slip"));
        compare("cancelled_take_away.txt", composeMenuOrderCanceled(slip));
        EntityConfigKitchenPrinter* narrow = kitchen("Bar", "DESSERT");
        narrow->setColumnPaper("30");
        compare("cancelled_dine_narrow.txt", composeMenuOrderCanceled({narrow, m_order, DineOrder, m_now}));
    }

    void eachBillComesFromItsOwnSale()
    {
        KorLogger log(nullptr, m_spool->filePath("log"));
        log.setShowTimestamp(false);
        AppContext::instance()->setLogger(&log);
        EntityInvoiceMakanDitempat dine;
        fillSale(&dine, 60000);
        dine.setMakanDitempat(m_order);
        m_order->setMember(m_member);
        // One of several separate bills: it shows this invoice's lines, not the whole table's.
        dine.setDetails({m_bill.lines.first()});
        QVERIFY(ReportBillMakanDitempat(nullptr, m_cashier, &dine, m_company, m_user, m_printerType).print());

        EntityInvoiceFastFood fastFood;
        fillSale(&fastFood, 60000);
        fastFood.setPemesan("Pak Joko");
        QVERIFY(ReportBillFastFood(nullptr, m_cashier, &fastFood, m_company, nullptr, m_printerType).print());

        EntityInvoiceBawaPulang takeAway;
        fillSale(&takeAway, 60000);
        takeAway.setPemesan("Pak Joko");
        takeAway.setMember(m_member);
        QVERIFY(ReportBillBawaPulang(nullptr, m_cashier, &takeAway, m_company, m_user, m_printerType).print());

        QCOMPARE(jobs(), QStringList({"000001-Kasir-Bill.slip", "000002-Kasir-Bill.slip", "000003-Kasir-Bill.slip"}));
        compare("sale_dine_split.txt", job(0));
        compare("sale_fast_food.txt", job(1));
        compare("sale_take_away.txt", job(2));

        // A sale over the counter leaves its text in the log, and it alone.
        QFile logFile(m_spool->filePath("log"));
        QVERIFY(logFile.open(QIODevice::ReadOnly));
        QCOMPARE(logFile.readAll().trimmed(), job(1).trimmed());
    }

    void aTakeAwayPrintsItsCopiesWithACutBehindEach()
    {
        EntityInvoiceBawaPulang sale;
        fillSale(&sale, 60000);
        sale.setPemesan("Pak Joko");
        m_cashier->setAutoCutter("Yes");
        m_cashier->setNoOfCopy("2");
        QVERIFY(ReportBillBawaPulang(nullptr, m_cashier, &sale, m_company, m_user, m_printerType).print());

        EntityBawaPulang order;
        order.setId(305);
        order.setPemesan("Pak Joko");
        order.setMember(m_member);
        order.setCreatedTime(m_now);
        order.setUpdatedTime(m_now);
        // The kitchen knows the first line, and gets what is new on paper of 32 columns.
        order.setDetails(
            {orderedLine<EntityBawaPulangDetail>(item("SATE-AYAM", "Sate ayam bumbu kacang", "GRILL"), 12,
                                                 "half of them without any chili", EntityOrderDetail::UPDATED),
             orderedLine<EntityBawaPulangDetail>(item("TEH", "Teh manis", "DRINK"), 3)});
        EntityConfigKitchenPrinter* grill = kitchen("Grill", "GRILL");
        grill->setColumnPaper("32");
        grill->setNoOfCopy("2");
        grill->setAutoCutter("Yes");
        const KitchenSlipData slip{grill, &order, TakeAwayOrder, m_now};
        compare("sale_take_away_two_copies.txt", job(0));
        compare("kitchen_take_away_narrow.txt", *composeMenuOrder(slip));
        QVERIFY(ReportMenuOrder(nullptr, {grill}, &order, TakeAwayOrder, m_company, m_user, m_printerType).print());
        QCOMPARE(job(1).count("Sate ayam"), 2);
        QCOMPARE(job(1).count("\x1D\x56\x42"), 2);
        QVERIFY(!job(1).contains("Teh manis"));
    }

    void aCounterSalesCopiesAreCutApart()
    {
        m_cashier->setAutoCutter("Yes");
        m_cashier->setNoOfCopy("2");
        EntityInvoiceFastFood fastFood;
        fillSale(&fastFood, 20000);
        fastFood.setPemesan("Pak Joko");
        fastFood.setMember(m_member);
        QVERIFY(ReportBillFastFood(nullptr, m_cashier, &fastFood, m_company, m_user, m_printerType).print());
        compare("sale_fast_food_copies.txt", job(0));
    }

    void aPrinterTypeThatIsUnknownCutsNothing()
    {
        m_cashier->setAutoCutter("Yes");
        QVERIFY(ReportMakanDitempat(nullptr, m_cashier, m_order, m_company, nullptr, nullptr).print());
        QCOMPARE(job(0), composeOrderRecap(*m_order, *m_company, *m_cashier).toUtf8());
    }

    void anUnknownPrinterIsToldAndTheOtherKitchensPrint()
    {
        QFile names(m_spool->filePath("printers"));
        QVERIFY(names.open(QIODevice::WriteOnly));
        names.write("Kasir\nBar\n");
        names.close();
        const ModalDriver person;
        // A kitchen slip uses the cut sequence of the cashier's printer type, not of its own.
        EntityConfigKitchenPrinter* bar = kitchen("Bar", "DRINK");
        bar->setPrinterType("EPSON-TM-T88III");
        bar->setAutoCutter("Yes");
        QVERIFY(!ReportMenuOrder(nullptr, {kitchen("Dapur"), bar}, m_order, DineOrder, m_company, m_user, m_printerType)
                     .print());
        QCOMPARE(person.texts(), QStringList("Error Opening Printer:Dapur"));
        QCOMPARE(person.lastTitle(), QString("Error"));
        QCOMPARE(jobs(), QStringList("000001-Bar-Menu.slip"));
        QVERIFY(job(0).contains("Teh manis"));
        QVERIFY(!job(0).contains("Nasi goreng"));
        QVERIFY(job(0).endsWith("\n\n\n\n\x1D\x56\x42"));
    }

    void aKitchenWithNothingToCookGetsNoJob()
    {
        QVERIFY(ReportMenuOrder(nullptr, {kitchen("Bar", "DESSERT")}, m_order, DineOrder, m_company, m_user, nullptr)
                    .print());
        QVERIFY(ReportMenuOrder(nullptr, {}, m_order, DineOrder, m_company, m_user, nullptr).print());
        QCOMPARE(jobs(), QStringList());
    }

private:
    [[nodiscard]] QObject* here() const { return m_records.get(); }
    template <class Record>
    Record* make() const
    {
        return new Record(here());
    }
    EntityItem* item(const QString& code, const QString& name, const QString& type) const
    {
        auto* group = make<EntityJenisItem>();
        group->setKode(type);
        auto* made = make<EntityItem>();
        made->setKode(code);
        made->setNama(name);
        made->setJenis(group);
        return made;
    }

    EntityInvoiceDetail* soldLine(const QString& name, int quantity, double price) const
    {
        auto* line = make<EntityInvoiceDetail>();
        line->setItem(item("X", name, "FOOD"));
        line->setQty(quantity);
        line->setPriceEach(new Money(line, price, "Rp"));
        line->recomputeTotal();
        return line;
    }

    template <class Line>
    Line* orderedLine(EntityItem* item, int quantity, const QString& wish = {}, int status = EntityOrderDetail::NEW)
    {
        auto* line = make<Line>();
        line->setItem(item);
        line->setQty(quantity);
        line->setDescription(wish);
        line->setStatus(status);
        return line;
    }

    /** Sets the totals from the lines. */
    void settle(Invoice* invoice, double paid, double credit) const
    {
        double subtotal = 0;
        for (const EntityInvoiceDetail* line : m_bill.lines)
            subtotal += line->getTotal()->getAmount();
        const double tax = subtotal / 10;
        constexpr double discount = 2000;
        constexpr double service = 1500;
        invoice->setSubtotal(new Money(invoice, subtotal, "Rp"));
        invoice->setTax(new Money(invoice, tax, "Rp"));
        invoice->setDiscount(new Money(invoice, discount, "Rp"));
        invoice->setService(new Money(invoice, service, "Rp"));
        invoice->setGrandTotal(new Money(invoice, subtotal - discount + tax + service, "Rp"));
        invoice->setAmountPaid(new Money(invoice, paid, "Rp"));
        invoice->setOtherPayment(new Money(invoice, credit, "Rp"));
    }

    EntityConfigKitchenPrinter* kitchen(const QString& name, const QString& types = {}) const
    {
        auto* made = printer<EntityConfigKitchenPrinter>(name);
        made->setKodeJenisItem(types);
        return made;
    }

    template <class Printer>
    Printer* printer(const QString& name) const
    {
        auto* made = make<Printer>();
        made->setPrinterName(name);
        made->setAutoCutter("No");
        made->setNoOfCopy("1");
        made->setColumnPaper("40");
        made->setNoOfBlankLines("4");
        return made;
    }

    void fillSale(EntityInvoiceLink* sale, double paid) const
    {
        sale->getInvoice()->setInvoiceNo("TRX112600003");
        sale->getInvoice()->setCreatedTime(m_now);
        sale->setDetails(m_bill.lines);
        settle(sale->getInvoice(), paid, 0);
    }

    static void compare(const QString& name, const QByteArray& bytes)
    {
        const QString difference = goldenDifference(name, bytes);
        QVERIFY2(difference.isEmpty(), qPrintable(difference));
    }
    static void compare(const QString& name, const QString& text) { compare(name, text.toUtf8()); }
    [[nodiscard]] QStringList jobs() const { return QDir(m_spool->path()).entryList({"*.slip"}, QDir::Files); }
    [[nodiscard]] QByteArray job(int number) const
    {
        QFile file(m_spool->filePath(jobs().value(number)));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("no such slip");
    }

    std::unique_ptr<QObject> m_records;
    std::unique_ptr<QTemporaryDir> m_spool;
    EntityDataPerusahaan* m_company = nullptr;
    EntityConfigCashierPrinter* m_cashier = nullptr;
    EntityPrinterType* m_printerType = nullptr;
    EntityUser* m_user = nullptr;
    EntityMember* m_member = nullptr;
    EntityMakanDitempat* m_order = nullptr;
    BillData m_bill;
    Invoice* m_invoice = nullptr;
    QDateTime m_now;
};

QTEST_MAIN(TestSlips)
#include "tst_slips.moc"
