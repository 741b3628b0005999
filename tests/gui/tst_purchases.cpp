#include "app/context/AppContext.h"
#include "kor/business/KorServiceDirectory.h"
#include "purchasing/acquisition/BusinessPurchases.h"
#include "purchasing/acquisition/DialogPurchaseDetail.h"
#include "purchasing/acquisition/DialogPurchaseDetailPO.h"
#include "purchasing/acquisition/DialogPurchases.h"
#include "purchasing/acquisition/TabPurchases.h"
#include "purchasing/purchaseorder/DialogPurchaseOrder.h"
#include "purchasing/purchaseorder/DialogPurchaseOrderDetail.h"
#include "purchasing/purchaseorder/DialogSelectPO.h"
#include "purchasing/purchaseorder/TabPurchaseOrder.h"
#include "support/ModalDriver.h"
#include "support/ShopRows.h"
#include "support/TestDatabase.h"

#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QDateEdit>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTabWidget>
#include <QTableView>
#include <QTest>

namespace
{
// The money of an order and of a purchase, in the order of the columns below.
const QString money = "'Rp', %1, 0, 'Rp', 0, 0, 'Rp', 0, 'Rp', %1";
const QString moneyColumns = "sub_total_currency, sub_total_amount, disc_perc, discount_currency, discount_amount, "
                             "tax_perc, tax_currency, tax_amount, grandtotal_currency, grandtotal_amount";
} // namespace

/** The storekeeper at the pages of purchases and purchase orders, with keyboard and mouse. */
class TestPurchases : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void aPurchaseIsEnteredPaidAndListed();

private:
    template <class Page>
    void show();
    /** Works on the form behind the button of the page until it is closed, saved or given up. */
    template <class Form>
    void onForm(const char* button, const std::function<void(Form*)>& work);
    /** Keys a line into the form behind the button of the visible page of lines. */
    template <class Line>
    void keyLine(QWidget* form, const char* button, const QStringList& entries);
    void takeOrder(DialogPurchases* form);
    static QLineEdit* box(QWidget* form, const char* name) { return form->findChild<QLineEdit*>(name); }
    static void type(QWidget* form, const char* name, const QString& text);
    static void click(QWidget* page, const char* button);
    static QPushButton* shown(QWidget* form, const char* button);
    static QStringList row(const QWidget* page, const char* grid, int row);
    static void confirm(QWidget* form) { QTest::keyClick(form, Qt::Key_Return); }
    void insertOrder(int id, int supplier, const QString& no, int status = 2);
    void insertPurchase(int id, const QString& no, int total, int paid, int status);
    QString value(const QString& statement) { return m_database->value(statement).toString(); }

    std::unique_ptr<TestDatabase> m_database;
    std::unique_ptr<ModalDriver> m_people;
    std::unique_ptr<QWidget> m_page;
};

void TestPurchases::init()
{
    m_database = std::make_unique<TestDatabase>();
    AppContext::instance()->setLocale("id_ID");
    insertShop(*m_database);
    loginAsAdmin();
    insertItem(*m_database, 2, "EGG", "Eggs");
    m_database->run("INSERT INTO bank (id, kode, nama, account_type, active, version) VALUES "
                    "(2, '2000', 'Accounts Payable', 2, true, 1)");
    m_database->run("INSERT INTO supplier (id, kode, nama, alamat, telp, email, version) VALUES "
                    "(2, 'S2', 'Farm', 'Hill 9', '9', '', 1)");
    m_people = std::make_unique<ModalDriver>();
}

void TestPurchases::cleanup()
{
    m_page.reset();
    m_people.reset();
    service<BusinessPurchases>("Purchases")->clearErrors();
    m_database.reset();
}

template <class Page>
void TestPurchases::show()
{
    m_page = std::make_unique<Page>();
    m_page->resize(1100, 600);
    m_page->show();
    QVERIFY(QTest::qWaitForWindowActive(m_page.get()));
}

template <class Form>
void TestPurchases::onForm(const char* button, const std::function<void(Form*)>& work)
{
    m_people->expect<Form>([work](Form* form) {
        QApplication::setActiveWindow(form);
        work(form);
    });
    click(m_page.get(), button);
    QVERIFY2(m_people->finished(), qPrintable(m_people->texts().join('|') + m_people->surprises().join('|')));
}

void TestPurchases::type(QWidget* form, const char* name, const QString& text)
{
    box(form, name)->setFocus(Qt::TabFocusReason);
    box(form, name)->selectAll();
    QTest::keyClicks(box(form, name), text);
    QTest::keyClick(box(form, name), Qt::Key_Tab);
}

QPushButton* TestPurchases::shown(QWidget* form, const char* button)
{
    for (QPushButton* one : form->findChildren<QPushButton*>(button)) {
        if (one->isVisible())
            return one;
    }
    return nullptr;
}

void TestPurchases::click(QWidget* page, const char* button)
{
    QTest::mouseClick(shown(page, button), Qt::LeftButton);
}

QStringList TestPurchases::row(const QWidget* page, const char* grid, int row)
{
    QTableView* view = nullptr;
    for (QTableView* one : page->findChildren<QTableView*>(grid)) {
        if (one->isVisible())
            view = one;
    }
    QStringList cells;
    for (int column = 0; view && row < view->model()->rowCount() && column < view->model()->columnCount(); ++column)
        cells.append(view->model()->index(row, column).data().toString());
    return cells;
}

template <class Line>
void TestPurchases::keyLine(QWidget* form, const char* button, const QStringList& entries)
{
    m_people->expect<Line>([entries](Line* line) {
        QApplication::setActiveWindow(line);
        for (const QString& entry : entries)
            type(line, entry.section('=', 0, 0).toLatin1(), entry.section('=', 1));
        confirm(line);
    });
    if (QByteArray(button) == "btnAdd")
        m_people->expect<Line>([](Line* line) { QTest::keyClick(line, Qt::Key_Escape); });
    click(form, button);
}

void TestPurchases::insertOrder(int id, int supplier, const QString& no, int status)
{
    m_database->run(QString("INSERT INTO purchase_order (id, no, purchase_date, supplier_id, status_id, ship_date, "
                            "deposit_currency, deposit_amount, %1, bank_id, version) VALUES "
                            "(%2, '%3', current_date, %4, %5, current_date + 2, 'Rp', 0, %6, 2, 1)")
                        .arg(moneyColumns)
                        .arg(id)
                        .arg(no)
                        .arg(supplier)
                        .arg(status)
                        .arg(QString(money).replace("%1", "120")));
    m_database->run(QString("INSERT INTO purchase_order_detail (id, purchase_order_id, item_id, jumlah, "
                            "price_currency, price_amount, discount_currency, discount_amount, total_price_currency, "
                            "total_price_amount, discount_percentage, version) VALUES "
                            "(%1 * 10, %1, 1, 3, 'Rp', 10, 'Rp', 0, 'Rp', 30, 0, 1), "
                            "(%1 * 10 + 1, %1, 2, 6, 'Rp', 15, 'Rp', 0, 'Rp', 90, 0, 1)")
                        .arg(id));
}

void TestPurchases::insertPurchase(int id, const QString& no, int total, int paid, int status)
{
    m_database->run(QString("INSERT INTO acquisition (id, no, invoice_no, purchase_date, due_date, supplier_id, "
                            "waiting_bill, apply_to_po, %1, amount_paid_currency, amount_paid_amount, "
                            "net_due_currency, net_due_amount, other_payment_currency, other_payment_amount, status, "
                            "bank_id, version) VALUES (%2, '%3', 'F-%2', current_date, current_date + 14, 1, false, "
                            "false, %7, 'Rp', %5, 'Rp', %4 - %5, 'Rp', 0, %6, 2, 1)")
                        .arg(moneyColumns)
                        .arg(id)
                        .arg(no)
                        .arg(total)
                        .arg(paid)
                        .arg(status)
                        .arg(QString(money).replace("%1", QString::number(total))));
    m_database->run(QString("INSERT INTO acquisition_detail (id, acquisition_id, item_id, qty, qty_ordered, "
                            "price_each_currency, price_each_amount, discount_currency, discount_amount, "
                            "total_price_currency, total_price_amount, discount_percentage, version) VALUES "
                            "(%1 * 10, %1, 1, 2, 0, 'Rp', %2 / 2, 'Rp', 0, 'Rp', %2, 0, 1)")
                        .arg(id)
                        .arg(total));
}

void TestPurchases::takeOrder(DialogPurchases* form)
{
    m_people->expect<DialogSelectPO>([](DialogSelectPO* orders) {
        QApplication::setActiveWindow(orders);
        QTest::keyClick(orders->findChild<QTableView*>("tblPO"), Qt::Key_Return);
    });
    QApplication::setActiveWindow(form);
    QTest::keyClick(form, Qt::Key_F4);
    QTRY_VERIFY(shown(form, "btnSelectPO"));
    click(form, "btnSelectPO");
}

// --- purchases -----------------------------------------------------------------------------------------------------

void TestPurchases::aPurchaseIsEnteredPaidAndListed()
{
    insertPurchase(1, "NB-0001", 100, 0, 2);
    insertPurchase(2, "NB-0002", 100, 40, 3);
    insertPurchase(3, "NB-0003", 100, 100, 1);
    insertOrder(1, 1, "PO-0001");
    show<TabPurchases>();
    onForm<DialogPurchases>("btnAdd", [this](DialogPurchases* form) {
        type(form, "txtSupplier", "s1");
        keyLine<DialogPurchaseDetail>(form, "btnAdd", {"txtCode=RICE", "txtQty=3"});
        form->grab().save("/tmp/p_form1.png");
        takeOrder(form);
        form->grab().save("/tmp/p_form2.png");
        QTest::keyClick(form, Qt::Key_Escape);
    });
    m_page->grab().save("/tmp/p_list.png");
    show<TabPurchaseOrder>();
    m_page->grab().save("/tmp/po_list.png");
    m_page->findChild<QTableView*>()->selectRow(0);
    onForm<DialogPurchaseOrder>("btnEdit", [](DialogPurchaseOrder* form) {
        form->grab().save("/tmp/po_form.png");
        QTest::keyClick(form, Qt::Key_Escape);
    });
}

QTEST_MAIN(TestPurchases)
#include "tst_purchases.moc"
