#include "app/numbers/DialogKeyTable.h"
#include "forms/AllForms.h"
#include "kor/widgets/KorNumberEdit.h"
#include "pos/cash/ledger/DialogCashFlow.h"
#include "pos/cash/transfer/DialogTransaction.h"
#include "pos/masterdata/agent/DialogAgent.h"
#include "pos/masterdata/item/DialogItem.h"
#include "pos/masterdata/item/DialogSubItem.h"
#include "pos/masterdata/member/DialogMember.h"
#include "pos/printing/configuration/DialogCashierAndKitchenPrinter.h"
#include "pos/purchasing/purchase/DialogPurchaseDetail.h"
#include "pos/purchasing/purchase/EntityAcquisitionDetail.h"
#include "support/DatabaseTest.h"
#include "zavel/dinein/DialogBayarMakanDitempat.h"
#include "zavel/service/BusinessPenjualan.h"

namespace
{
using Made = std::unique_ptr<KorDialog>;

/** The form of a stored record, which is saved by the service on accept; without an id, of a new one. */
template <class Dialog>
Made recordForm(const QString& serviceName, int id = KorNoValue)
{
    auto dialog = std::make_unique<Dialog>();
    auto* records = service<KorBusinessLogic>(serviceName);
    if (id != KorNoValue)
        dialog->setEntity(records->find(id));
    dialog->setSaver([form = dialog.get(), records, id] {
        return id == KorNoValue ? records->insert(form->getEntity()) : records->update(form->getEntity());
    });
    return dialog;
}

/** The form of a line, which is not saved. */
template <class Dialog, class Line>
Made lineForm()
{
    static EntityPool items;
    auto dialog = std::make_unique<Dialog>(items, nullptr);
    dialog->setEntity(new Line(dialog.get()));
    return dialog;
}

Made paymentForm()
{
    auto dialog = std::make_unique<DialogBayarMakanDitempat>();
    return dialog->openOrder(service<BusinessPenjualan>("Sales")->findOrder(1)) ? std::move(dialog) : nullptr;
}

const QHash<QString, std::function<Made()>>& makers()
{
    static const QHash<QString, std::function<Made()>> all{
        {"payment", paymentForm},
        {"item", [] { return recordForm<DialogItem>("Item", 1); }},
        {"member", [] { return recordForm<DialogMember>("Member", 1); }},
        {"agent", [] { return recordForm<DialogAgent>("Agent", 1); }},
        {"cash entry", [] { return recordForm<DialogCashFlow>("Journal Transaction"); }},
        {"transfer", [] { return recordForm<DialogTransaction>("Accounting Transaction"); }},
        {"running number", [] { return recordForm<DialogKeyTable>("KeyTable", 1); }},
        {"printer", [] { return std::make_unique<DialogCashierAndKitchenPrinter>(); }},
        {"purchase line", lineForm<DialogPurchaseDetail, EntityAcquisitionDetail>},
        {"component", [] { return std::make_unique<DialogSubItem>(1); }},
    };
    return all;
}
} // namespace

/** Amounts, quantities and percentages are stored as typed, or the form shows why not. */
class TestAmounts : public DatabaseTest
{
    Q_OBJECT

protected:
    void prepare() override
    {
        openShopForForms(*m_database);
        run("UPDATE keytable SET id = 1 WHERE key_name = 'PO'");
        insert("bank", "id=5, kode='1010', nama='Cash on Hand', active=true");
    }

private slots:
    void noBoxOfAnyFormTakesWhatItCannotKeep_data()
    {
        addRows<QString>("locale", {{"English", "en_US"}, {"Indonesian", "id_ID"}});
    }
    void noBoxOfAnyFormTakesWhatItCannotKeep()
    {
        QFETCH(QString, locale);
        AppContext::instance()->setLocale(locale);
        const QString point = QLocale(locale).decimalPoint();
        const QString group = QLocale(locale).groupSeparator();
        const QStringList wrong{"abc", "1" + group + "5", "1" + point + "5" + group + "000", "-1",
                                "9" + QString(15, '0')};
        QStringList taken;
        for (const Form& form : allForms()) {
            const std::unique_ptr<QWidget> shown = form.make();
            const QList<KorNumberEdit*> boxes = shown->findChildren<KorNumberEdit*>();
            if (boxes.isEmpty())
                continue;
            showForm(shown.get());
            for (KorNumberEdit* box : boxes) {
                for (const QString& text : wrong) {
                    box->setFocus();
                    box->clear();
                    QTest::keyClicks(box, text);
                    // Percentages have no maximum, and stock adjustments may be negative.
                    const bool isNumber = (text.startsWith('9') && box->inherits("PercentEdit")) ||
                                          (text == "-1" && box->objectName() == "txtStok");
                    if (box->text() == text && !isNumber && box->fault().isEmpty() && box->doubt().isEmpty())
                        taken.append(QString("%1 %2 %3").arg(form.name, box->objectName(), text));
                }
            }
        }
        QCOMPARE(taken.join('\n'), QString());
    }

    void anEntryIsStoredAsItStandsOrTold_data()
    {
        const auto row = addColumns<QString, QString, Entries, QStringList, QString, QString>(
            "form", "locale", "entries", "told", "query", "stored");
        const auto mark = [](const char* typed, const char* example) {
            return QString("\"%1\" is no number here, please write it like %2\r\n").arg(typed, example);
        };
        const char* const en = "en_US";
        const char* const id = "id_ID";
        const QString go = "\n\nDo you want to go on?";

        const char* const price = "SELECT harga_beli_amount || harga_beli_currency FROM item WHERE id = 1";
        row("a price", "item", en, {{"txtHargaBeli", "1,234"}}, {}, price, "1234$");
        row("a price that wraps", "item", en, {{"txtHargaBeli", "25,000,000"}},
            {"The amount is too large, the largest is 21,474,836\r\n"}, price, "10Rp");
        row("a price that wraps in rupiah", "item", id, {{"txtHargaBeli", "999999999999"}},
            {"The amount is too large, the largest is 2.147.483.647\r\n"}, price, "10Rp");
        row("the largest price", "item", id, {{"txtHargaBeli", "2.147.483.647"}}, {}, price, "2147483647Rp");
        row("a price below nothing", "item", id, {{"txtHargaBeli", "-5"}}, {"The amount must not be negative\r\n"},
            price, "10Rp");
        row("a comma for a point", "item", en, {{"txtHargaBeli", "1,5"}},
            {"Enter the unit cost\r\n" + mark("1,5", "1,234.5")}, price, "10Rp");
        row("a point for a comma", "item", id, {{"txtHargaBeli", "1.5"}},
            {"Enter the unit cost\r\n" + mark("1.5", "1.234,5")}, price, "10Rp");
        row("cents, refused", "item", en, {{"txtHargaBeli", "12.95"}}, {"Unit Cost: 12.95 will be stored as 12" + go},
            price, "10Rp");
        row("cents, agreed to", "item", en, {{"txtHargaBeli", "12.95"}, {"txtHargaJualLokal", "1.5"}, {"yes", ""}},
            {"Unit Cost: 12.95 will be stored as 12\nSales Price: 1.5 will be stored as 1" + go}, price, "12$");
        row("half a rupiah", "item", id, {{"txtHargaBeli", "12,5"}, {"yes", ""}},
            {"Unit Cost: 12,5 will be stored as 13" + go}, price, "13Rp");

        const char* const discount = "SELECT discount_percentage::float FROM member";
        row("a member's percent", "member", en, {{"txtDiscPerc", "7.5"}}, {}, discount, "7.5");
        row("letters for a member's percent", "member", en, {{"txtDiscPerc", "abc"}}, {"Please enter a number\r\n"},
            discount, "0");
        row("more than all, refused", "member", en, {{"txtDiscPerc", "150"}},
            {"Discount: 150 is not between 0 and 100" + go}, discount, "0");
        row("less than nothing, agreed to", "member", en, {{"txtDiscPerc", "-3"}, {"yes", ""}},
            {"Discount: -3 is not between 0 and 100" + go}, discount, "-3");
        row("the number that stands for none", "member", en, {{"txtDiscPerc", "-9999"}},
            {"-9,999 cannot be stored, please enter another number\r\n"}, discount, "0");
        const char* const share = "SELECT commision_perc::float FROM agent";
        row("an agent's share", "agent", id, {{"txtPerc", "1.5"}},
            {"Enter the number between 0-100\r\n" + mark("1.5", "1.234,5")}, share, "10");
        row("an agent's share emptied", "agent", id, {{"txtPerc", ""}}, {}, share, "0");

        const char* const paid = "SELECT string_agg(amount_paid_amount::text, ' ') FROM invoice";
        const QStringList questions{"Do you want to print this invoice?"};
        row("a payment", "payment", id, {{"txtPaid", "500"}, {"no", ""}}, questions, paid, "500");
        row("a wrong mark in a payment", "payment", id, {{"txtPaid", "1.5"}}, {mark("1.5", "1.234,5")}, paid, "");
        row("a payment below nothing", "payment", id, {{"txtPaid", "-1"}}, {"The amount must not be negative\r\n"},
            paid, "");
        row("a tax below nothing", "payment", id, {{"txtTaxPerc", "-1"}},
            {"The percentage must not be negative\r\nThe amount must not be negative\r\n"}, paid, "");
        row("more off than there is", "payment", id, {{"txtDiscPerc", "250"}},
            {"The discount should not be larger than the sub total\r\n"}, paid, "");
        row("half a rupiah at the till", "payment", id, {{"txtPaid", "500,5"}},
            {"[F9] Amount Paid at Sale: 500,5 will be stored as 501" + go}, paid, "");

        const char* const entry = "SELECT string_agg(debet_amount::text, ' ') FROM cash_flow";
        row("a wrong mark in the cash", "cash entry", en, {{"txtAccount", "1-100"}, {"txtPaid", "1,5"}},
            {"Enter the amount paid\r\n" + mark("1,5", "1,234.5")}, entry, "");
        row("cents in the cash", "cash entry", en, {{"txtAccount", "1-100"}, {"txtPaid", "1.50"}, {"yes", ""}},
            {"Amount: 1.50 will be stored as 1" + go}, entry, "1");
        row("nothing but a part in the cash", "cash entry", id, {{"txtAccount", "1-100"}, {"txtPaid", "0,4"}},
            {"Enter the amount paid\r\n"}, entry, "");
        row("too much for a transfer", "transfer", en,
            {{"txtFromAccount", "1-100"}, {"txtToAccount", "1010"}, {"txtAmount", "25000000"}},
            {"The amount is too large, the largest is 21,474,836\r\n"}, "SELECT count(*) FROM accounting_trans", "0");

        row("half a piece bought", "purchase line", id, {{"txtCode", "RICE"}, {"txtQty", "2,5"}},
            {"Please enter a whole number\r\n"}, "SELECT ''", "");
        row("a share of a line below nothing", "purchase line", id,
            {{"txtCode", "RICE"}, {"txtQty", "2"}, {"txtDiscPerc", "-10"}},
            {"The percentage must not be negative\r\nThe amount must not be negative\r\n"}, "SELECT ''", "");
        row("half a component", "component", id, {{"txtKode", "RICE"}, {"txtJumlah", "1,5"}},
            {"Please enter a whole number\r\n"}, "SELECT ''", "");
        row("a component of itself", "component", id, {{"txtKode", "RICE"}, {"txtJumlah", "1"}},
            {"An item cannot be its own component"}, "SELECT ''", "");
        row("a component of its component", "component", id, {{"txtKode", "STEW"}, {"txtJumlah", "1"}},
            {"Stew is made of this item, it cannot be a component of it"}, "SELECT ''", "");

        const char* const number = "SELECT concat_ws(' ', next_id, increment_by, no_zero) FROM keytable WHERE id = 1";
        row("numbers that stand still", "running number", id, {{"txtIncrementBy", "0"}, {"txtNoZero", "-3"}},
            {"Please enter a whole number from 1 to 999.999.999\r\nPlease enter a whole number from 0 to 20\r\n"},
            number, "7 1 4");
        row("a number without zeros", "running number", id, {{"txtNoZero", "0"}}, {}, number, "7 1 0");
        row("paper of no width", "printer", id, {{"txtCol", "-5"}, {"txtBlankLines", "abc"}},
            {"Please enter a whole number from 1 to 255\r\nPlease enter a number\r\n"}, "SELECT ''", "");
        row("paper as wide as a house", "printer", id, {{"txtCol", "1.000.000"}},
            {"Please enter a whole number from 1 to 255\r\n"}, "SELECT ''", "");
    }
    void anEntryIsStoredAsItStandsOrTold()
    {
        FETCH(QString, form, locale, query);
        QFETCH(Entries, entries);
        QFETCH(QStringList, told);
        insertItem(*m_database, 2, "SOUP", "Soup");
        insertItem(*m_database, 3, "STEW", "Stew");
        run("INSERT INTO grouped_item (parent_id, original_item_id, jumlah, version) "
            "VALUES (3, 2, 1, 1), (2, 1, 1, 1)");
        AppContext::instance()->setLocale(locale);
        const Made shown = makers()[form]();
        showForm(shown.get());
        for (const auto& entry : qAsConst(entries)) {
            if (entry.first == "yes" || entry.first == "no")
                m_people->answer(entry.first == "yes" ? QMessageBox::Yes : QMessageBox::No);
            else
                enter(shown.get(), entry.first, entry.second);
        }
        press(shown.get(), QDialogButtonBox::Ok);
        QTRY_COMPARE(m_people->texts(), told);
        QTEST(value(query), "stored");
    }

    void aBillInDollarsAddsUpToWhatIsStored()
    {
        AppContext::instance()->setLocale("en_US");
        run("UPDATE makan_ditempat_detail SET price_each_currency = '$', total_currency = '$'");
        run("UPDATE makan_ditempat_detail SET qty = 1, price_each_amount = 18, total_amount = 18");
        const char* const stored =
            "SELECT concat_ws(' ', discount_amount, grandtotal_amount, amount_paid_amount, status) "
            "FROM invoice";
        const Made form = paymentForm();
        showForm(form.get());
        ::enter(form.get(), "txtDiscPerc", "10");
        QCOMPARE(::shown(form.get(), "txtDiscount") + ' ' + ::shown(form.get(), "txtGrandTotal"), QString("3 33.00"));
        ::enter(form.get(), "txtPaid", "33");
        press(form.get(), QDialogButtonBox::Ok);
        QTRY_COMPARE(value(stored), QString("3 33 33 1"));
        press(form.get(), QDialogButtonBox::Ok);
        QTRY_COMPARE(m_database->value("SELECT version FROM invoice").toInt(), 2);
        QCOMPARE(value(stored), QString("3 33 33 1"));
    }
};

QTEST_MAIN(TestAmounts)
#include "tst_amounts.moc"
