#include "app/context/AppContext.h"
#include "app/widgets/AppEntityTextBox.h"
#include "kor/business/KorBusinessLogic.h"

#include <QApplication>
#include <QLineEdit>
#include <QTest>
#include <QTreeWidget>

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

class TestRecordLookup : public QObject
{
    Q_OBJECT

private slots:
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
    }

    void anOldErrorOfTheServiceDoesNotSpoilASearch()
    {
        Bill bill;
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

QTEST_MAIN(TestRecordLookup)
#include "tst_record_lookup.moc"
