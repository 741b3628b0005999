#include "app/context/AppContext.h"
#include "app/widgets/AppEntityTextBox.h"
#include "kor/business/KorBusinessLogic.h"
#include "support/Rows.h"

#include <QApplication>
#include <QDialog>
#include <QElapsedTimer>
#include <QLineEdit>
#include <QPointer>
#include <QScreen>
#include <QSignalSpy>
#include <QTimer>
#include <QTreeWidget>
#include <QVBoxLayout>

class Rank : public KorEntity
{
    Q_OBJECT
    KOR_PROPERTY(QString, Nama, QString(""))

public:
    using KorEntity::KorEntity;
};
Q_DECLARE_METATYPE(Rank*)

class Guest : public KorEntity
{
    Q_OBJECT
    KOR_PROPERTY(QString, Kode, QString(""))
    KOR_PROPERTY(QString, Nama, QString(""))
    KOR_REFERENCE(Rank, Rank)

public:
    using KorEntity::KorEntity;
};

namespace
{
// The offscreen platform gives every window, and so the list, a frame of two pixels.
constexpr int windowFrame = 4;

/** Finds menu entries by a part of their code, and remembers what it was asked. */
class MenuBox final : public KorTextBoxExtender
{
public:
    explicit MenuBox(QLineEdit* editor) : KorTextBoxExtender(editor, nullptr)
    {
        setColumnCount(2);
        setHeaderLabels({"Code", "Name"});
    }
    void search(const QString& text) override
    {
        asked.append(text);
        found = all.filter(text);
        setRowCount(found.size());
        searchComplete();
    }
    [[nodiscard]] QVariant rowText(int row, int column) const override
    {
        return column == 0 ? found.value(row) : "Name of " + found.value(row);
    }
    [[nodiscard]] QString selectedText(int row) const override { return found.value(row); }

    QStringList all = {"nasi", "nasi'goreng", "sate", "soto"};
    QStringList found;
    QStringList asked;
};

struct Order
{
    Order()
    {
        auto* layout = new QVBoxLayout(&window);
        layout->addWidget(&field);
        layout->addWidget(&quantity);
        box = new MenuBox(&field);
        timer = box->findChild<QTimer*>();
        window.resize(300, 100);
        window.show();
        [[maybe_unused]] const bool active = QTest::qWaitForWindowActive(&window);
        field.setFocus();
    }
    /** Like the keyboard: the window system sends keys to the list while it is open. */
    void press(Qt::Key key) { QTest::keyClick(window.windowHandle(), key); }
    void type(const QString& text)
    {
        for (const QChar letter : text)
            QTest::keyClick(window.windowHandle(), letter.toLatin1());
    }
    [[nodiscard]] static QTreeWidget* list() { return qobject_cast<QTreeWidget*>(QApplication::activePopupWidget()); }
    /** Only one test measures the half second; the others do not wait for it. */
    [[nodiscard]] bool waitForList(bool patiently = false)
    {
        if (!patiently && timer->isActive())
            timer->start(0);
        return QTest::qWaitFor([] { return list() != nullptr; }, 3000);
    }

    QDialog window;
    QLineEdit field;
    QLineEdit quantity;
    MenuBox* box;
    QTimer* timer;
};

class GuestService final : public KorBusinessLogic
{
public:
    GuestService() : KorBusinessLogic("Guest", nullptr) {}
    [[nodiscard]] QList<KorPermission> getPermissions() const override { return {}; }

    QList<KorEntity*> findAll(const QString& text)
    {
        asked.append(text);
        QList<KorEntity*> found;
        for (const QString& code : codes.filter(text)) {
            auto* guest = new Guest(AppContext::instance()->entityPool());
            guest->setKode(code);
            guest->setNama("Guest " + code);
            guest->setRank(new Rank(AppContext::instance()->entityPool()));
            guest->getRank()->setNama("gold");
            found.append(guest);
        }
        if (broken)
            addError("findall", "connection lost");
        return found;
    }

    QStringList codes = {"m1", "m2", "o'neil"};
    QStringList asked;
    bool broken = false;
};

class GuestTextBox final : public AppMasterTextBox<Guest, GuestService>
{
public:
    GuestTextBox(QLineEdit* editor, GuestService* service) : AppMasterTextBox(editor, service, {"Code", "Name", "Rank"})
    {}

protected:
    [[nodiscard]] QString thirdOf(const KorEntity& record) const override
    {
        return static_cast<const Guest&>(record).getRank()->getNama();
    }
};

struct Bill
{
    Bill()
    {
        field.show();
        [[maybe_unused]] const bool active = QTest::qWaitForWindowActive(&field);
    }
    [[nodiscard]] static QTreeWidget* list() { return qobject_cast<QTreeWidget*>(QApplication::activePopupWidget()); }
    void choose(const QString& text, int row)
    {
        box->search(text);
        for (int i = 0; i < row; ++i)
            QTest::keyClick(list(), Qt::Key_Down);
        QTest::keyClick(list(), Qt::Key_Return);
    }

    GuestService service;
    QLineEdit field;
    GuestTextBox* box = new GuestTextBox(&field, &service);
};

int recordsAlive() { return AppContext::instance()->mainEntityPool()->findChildren<KorEntity*>().size(); }
} // namespace

/** The list below a box: how it opens, is walked and goes, and the records that it hands to a form. */
class TestLookupBox : public QObject
{
    Q_OBJECT

private slots:
    void quickTypingSearchesOnceHalfASecondAfterTheLastKey()
    {
        Order order;
        QCOMPARE(order.timer->interval(), 500);
        QElapsedTimer sinceLastKey;
        order.type("nas");
        sinceLastKey.start();
        QVERIFY(order.waitForList(true));
        QVERIFY2(sinceLastKey.elapsed() >= 450, qPrintable(QString::number(sinceLastKey.elapsed())));
        QCOMPARE(order.box->asked, QStringList({"nas"}));
        QVERIFY(!order.timer->isActive());
    }

    void nobodyIsInterruptedByAList()
    {
        Order order;
        // A text from the program opens none, a form calls off a search that is due, and so does who goes on.
        order.field.setText("nasi");
        QVERIFY(!order.timer->isActive());
        order.type("n");
        QVERIFY(order.timer->isActive());
        order.box->preventSuggest();
        QVERIFY(!order.timer->isActive());
        order.type("n");
        QVERIFY(order.timer->isActive());
        order.press(Qt::Key_Tab);
        QVERIFY(order.quantity.hasFocus());
        QVERIFY(!order.timer->isActive());
    }

    void theListShowsTheRowsBelowTheField()
    {
        Order order;
        order.window.move(20, 20);
        order.type("s");
        QVERIFY(order.waitForList());
        QTreeWidget* list = Order::list();
        QCOMPARE(list->topLevelItemCount(), 4);
        QCOMPARE(list->topLevelItem(2)->text(0), QString("sate"));
        QCOMPARE(list->topLevelItem(2)->text(1), QString("Name of sate"));
        QCOMPARE(list->currentItem(), list->topLevelItem(0));
        QVERIFY(!list->isHeaderHidden());
        QCOMPARE(list->headerItem()->text(1), QString("Name"));
        const QPoint offset = list->pos() - order.field.mapToGlobal(QPoint(0, order.field.height()));
        QVERIFY2(offset.manhattanLength() <= windowFrame, "the list does not stand below the field");
        QCOMPARE(list->height(), 10 * list->visualItemRect(list->topLevelItem(0)).height() + 20);
        const int columns = list->columnWidth(0) + list->columnWidth(1);
        QVERIFY2(columns <= list->viewport()->width(), "a column is cut off");
        QVERIFY(!order.box->isVisible());
    }

    void aLongListIsAsWideAsItsTextsHoweverOftenItOpens()
    {
        Order order;
        order.box->all.clear();
        for (int i = 0; i < 40; ++i)
            order.box->all.append("grilled fish number " + QString::number(i));
        order.box->search("fish");
        QTreeWidget* list = Order::list();
        QVERIFY(QTest::qWaitForWindowExposed(list));
        const QAbstractItemView* view = list;
        const int width = list->width();
        for (int column = 0; column < 2; ++column)
            QVERIFY(list->columnWidth(column) >= view->sizeHintForColumn(column));
        QVERIFY(list->columnWidth(0) + view->sizeHintForColumn(1) <= list->viewport()->width());
        QVERIFY(width < list->columnWidth(0) + view->sizeHintForColumn(1) + 60);
        order.box->search("fish");
        QCOMPARE(list->width(), width);
        order.box->search("nothing of that");
        order.box->search("fish");
        QCOMPARE(list->width(), width);
    }

    void theListStaysOnTheScreen()
    {
        Order order;
        const QRect screen = order.window.screen()->availableGeometry();
        order.window.move(20, screen.bottom() - order.window.height());
        order.type("s");
        QVERIFY(order.waitForList());
        QVERIFY(screen.contains(Order::list()->geometry()));
        QVERIFY(Order::list()->geometry().bottom() <= order.field.mapToGlobal(QPoint(0, 0)).y() + windowFrame);
    }

    void aChoiceReachesTheFormAsIfReturnHadBeenPressed_data()
    {
        const auto row = addColumns<int, bool>("key", "goesOn");
        row("Return", Qt::Key_Return, false);
        row("Enter, on to the quantity", Qt::Key_Enter, true);
        row("mouse", 0, false);
        row("mouse, on to the quantity", 0, true);
    }
    void aChoiceReachesTheFormAsIfReturnHadBeenPressed()
    {
        QFETCH(int, key);
        QFETCH(bool, goesOn);
        Order order;
        if (goesOn)
            order.box->setNextWidget(&order.quantity);
        QStringList heard;
        connect(&order.field, &QLineEdit::returnPressed, this, [&] { heard << "return " + order.field.text(); });
        connect(order.box, &KorTextBoxExtender::onItemSelected, this,
                [&] { heard << "selected " + QString::number(order.box->selectedRow()); });
        QCOMPARE(order.box->selectedRow(), -1);
        order.type("s");
        QVERIFY(order.waitForList());
        QTreeWidget* list = Order::list();
        if (key) {
            order.press(Qt::Key_Down);
            order.press(Qt::Key(key));
        } else {
            QTest::mouseClick(list->viewport(), Qt::LeftButton, Qt::NoModifier,
                              list->visualItemRect(list->topLevelItem(1)).center());
        }
        QVERIFY(!list->isVisible());
        QCOMPARE(heard, QStringList({"return nasi'goreng", "selected 1"}));
        QCOMPARE(QApplication::focusWidget(), goesOn ? &order.quantity : &order.field);
        QVERIFY(!order.timer->isActive());
    }

    void theArrowKeysWalkTheList()
    {
        Order order;
        order.type("s");
        QVERIFY(order.waitForList());
        QTreeWidget* list = Order::list();
        const QList<QPair<Qt::Key, int>> walk = {{Qt::Key_Down, 1}, {Qt::Key_End, 3},      {Qt::Key_Up, 2},
                                                 {Qt::Key_Home, 0}, {Qt::Key_PageDown, 3}, {Qt::Key_PageUp, 0}};
        for (const auto& [key, row] : walk) {
            order.press(key);
            QCOMPARE(list->indexOfTopLevelItem(list->currentItem()), row);
        }
        QVERIFY(list->isVisible());
        QCOMPARE(order.field.text(), QString("s"));
    }

    void withoutAFindTheListSaysSoAndNothingIsChosen_data()
    {
        addRows<bool>("byMouse", {{"Return", false}, {"mouse", true}});
    }
    void withoutAFindTheListSaysSoAndNothingIsChosen()
    {
        QFETCH(bool, byMouse);
        Order order;
        order.type("zzz");
        QVERIFY(order.waitForList());
        QTreeWidget* list = Order::list();
        QCOMPARE(list->topLevelItemCount(), 1);
        QCOMPARE(list->topLevelItem(0)->text(0), QString("No result"));
        QVERIFY(!(list->topLevelItem(0)->flags() & Qt::ItemIsEnabled));
        QCOMPARE(order.box->rowCount(), 1);
        if (byMouse)
            QTest::mouseClick(list->viewport(), Qt::LeftButton, Qt::NoModifier,
                              list->visualItemRect(list->topLevelItem(0)).center());
        else
            order.press(Qt::Key_Return);
        QVERIFY(order.box->found.value(order.box->selectedRow()).isEmpty());
    }

    void escapeLeavesTheTextAndTheFormerChoice()
    {
        Order order;
        order.type("soto");
        QVERIFY(order.waitForList());
        order.press(Qt::Key_Return);
        QCOMPARE(order.box->selectedRow(), 0);
        QSignalSpy selected(order.box, &KorTextBoxExtender::onItemSelected);
        order.field.selectAll();
        order.type("sa");
        QVERIFY(order.waitForList());
        order.press(Qt::Key_Escape);
        QVERIFY(!Order::list());
        QCOMPARE(order.field.text(), QString("sa"));
        QCOMPARE(order.window.focusWidget(), &order.field);
        QCOMPARE(order.box->selectedRow(), 0);
        QCOMPARE(selected.count(), 0);
        QVERIFY(order.window.isVisible());
    }

    void aLetterTypedIntoTheOpenListGoesOnInTheFieldAndSearchesAnew()
    {
        Order order;
        order.type("s");
        QVERIFY(order.waitForList(true));
        order.type("a");
        QVERIFY(!Order::list());
        QCOMPARE(order.field.text(), QString("sa"));
        QVERIFY(order.timer->isActive());
        QVERIFY(order.waitForList(true));
        QCOMPARE(order.box->asked, QStringList({"s", "sa"}));
        order.press(Qt::Key_Backspace);
        QCOMPARE(order.field.text(), QString("s"));
    }

    void aClickBesideTheListClosesIt()
    {
        Order order;
        order.type("s");
        QVERIFY(order.waitForList());
        QTreeWidget* list = Order::list();
        QTest::mouseClick(list, Qt::LeftButton, Qt::NoModifier, QPoint(-5, -5));
        QVERIFY(!list->isVisible());
        QCOMPARE(order.window.focusWidget(), &order.field);
        QCOMPARE(order.field.text(), QString("s"));
        QCOMPARE(order.box->selectedRow(), -1);
    }

    void aFormMayCloseOnTheChoice()
    {
        Order order;
        auto* passing = new QLineEdit(&order.window);
        passing->show();
        QPointer<MenuBox> box = new MenuBox(passing);
        connect(passing, &QLineEdit::returnPressed, this, [&box] { delete box.data(); });
        box->search("nasi");
        QVERIFY(Order::list());
        order.press(Qt::Key_Return);
        QVERIFY(!box);
        QCOMPARE(passing->text(), QString("nasi"));
    }

    void theListOpensOverAModalForm()
    {
        Order order;
        order.window.hide();
        QTimer::singleShot(0, &order.window, [&order] {
            order.field.setFocus();
            QTest::keyClick(order.window.windowHandle(), 's');
            if (order.waitForList()) {
                order.press(Qt::Key_End);
                order.press(Qt::Key_Return);
            }
            order.window.accept();
        });
        QCOMPARE(order.window.exec(), int(QDialog::Accepted));
        QCOMPARE(order.field.text(), QString("soto"));
    }

    void theListGoesWithTheForm()
    {
        QPointer<QTreeWidget> list;
        {
            Order order;
            order.type("s");
            QVERIFY(order.waitForList());
            list = Order::list();
        }
        QVERIFY(!list);
        QVERIFY(!QApplication::activePopupWidget());
    }

    void aFoundRecordShowsItsCodeNameAndMore()
    {
        Bill bill;
        bill.box->search("o'");
        QCOMPARE(bill.service.asked, QStringList({"o'"}));
        QTreeWidgetItem* row = Bill::list()->topLevelItem(0);
        QCOMPARE(row->text(0), QString("o'neil"));
        QCOMPARE(row->text(1), QString("Guest o'neil"));
        QCOMPARE(row->text(2), QString("gold"));
        QCOMPARE(bill.box->rowText(0, 3), QVariant(QString()));
        QCOMPARE(bill.box->rowText(7, 0), QVariant(QString()));
    }

    void theChosenRecordIsHandedToTheForm()
    {
        Bill bill;
        QVERIFY(!bill.box->selectedItem());
        QCOMPARE(bill.box->selectedCode(), QString());
        QString heard;
        connect(&bill.field, &QLineEdit::returnPressed, this, [&] { heard = bill.box->selectedItem()->getNama(); });
        bill.choose("m", 1);
        QCOMPARE(heard, QString("Guest m2"));
        QCOMPARE(bill.field.text(), QString("m2"));
        QCOMPARE(bill.box->selectedCode(), QString("m2"));
        QCOMPARE(bill.box->selectedRow(), 1);
    }

    void theChosenRecordAndItsPartnersOutliveTheNextSearch()
    {
        Bill bill;
        bill.choose("m", 0);
        QPointer<Guest> guest = bill.box->selectedItem();
        bill.choose("o'neil", 0);
        bill.box->search("m");
        QVERIFY(guest);
        QCOMPARE(guest->getKode(), QString("m1"));
        QCOMPARE(guest->getRank()->getNama(), QString("gold"));
    }

    void recordsNobodyChoseGoWithTheNextSearch()
    {
        const int before = recordsAlive();
        {
            Bill bill;
            for (int i = 0; i < 20; ++i)
                bill.choose("m", 1);
            bill.box->search("nobody");
            QCOMPARE(recordsAlive() - before, 40); // each time the guest and its rank
        }
        QCOMPARE(recordsAlive(), before);
    }

    void escapeAfterAnotherSearchDoesNotChangeTheGuestOfTheBill()
    {
        Bill bill;
        bill.choose("m", 0);
        bill.box->search("o'neil");
        QTest::keyClick(Bill::list(), Qt::Key_Escape);
        QCOMPARE(bill.box->selectedRow(), 0);
        QCOMPARE(bill.box->selectedItem()->getKode(), QString("m1"));
    }

    void choosingNoResultLeavesNoGuest()
    {
        Bill bill;
        bill.choose("m", 0);
        bill.choose("nobody", 0);
        QVERIFY(!bill.box->selectedItem());
        QCOMPARE(bill.box->selectedCode(), QString());
    }

    void aFailedSearchShowsNoResultAndLeavesNoErrorBehind()
    {
        Bill bill;
        bill.service.broken = true;
        bill.box->search("m");
        QVERIFY(bill.box->items().isEmpty());
        QCOMPARE(Bill::list()->topLevelItem(0)->text(0), QString("No result"));
        QVERIFY(!bill.service.hasError());
        // Nor does an old one of the service spoil a search.
        bill.service.broken = false;
        bill.service.addError("update", "changed by another workstation");
        bill.box->search("m");
        QCOMPARE(bill.box->items().size(), 2);
    }

    void aBoxWithoutAServiceFindsNothing()
    {
        QLineEdit field;
        field.show();
        GuestTextBox box(&field, nullptr);
        box.search("m");
        QVERIFY(box.items().isEmpty());
        QVERIFY(!box.selectedItem());
    }
};

QTEST_MAIN(TestLookupBox)
#include "tst_lookup_box.moc"
