#include "pos/inventory/stock/BusinessStokAwal.h"
#include "pos/masterdata/item/BusinessGroupedItem.h"
#include "pos/masterdata/item/BusinessItem.h"
#include "pos/masterdata/item/EntityStokAwal.h"
#include "pos/masterdata/itemtype/BusinessJenisItem.h"
#include "pos/masterdata/unit/BusinessSatuan.h"
#include "support/DatabaseTest.h"

namespace
{
QStringList codesOf(const QList<KorEntity*>& items)
{
    QStringList codes;
    for (const KorEntity* item : items)
        codes.append(static_cast<const EntityItem*>(item)->getKode());
    codes.sort();
    return codes;
}
} // namespace

/** What the kitchen stocks and the menu sells: search, prices, components, and who may be deleted. */
class TestItems : public DatabaseTest
{
    Q_OBJECT

protected:
    void prepare() override
    {
        m_items = service<BusinessItem>("Item");
        m_components = service<BusinessGroupedItem>("Grouped Item");
    }

private slots:
    void anItemKeepsItsPricesAndAccounts()
    {
        EntityItem tea;
        fill(tea, "TEA'1", "mnm", EntityItem::SRV);
        tea.setIsGroup(true);
        tea.setNotes("strong");
        QVERIFY2(m_items->insert(&tea), qPrintable(m_items->takeErrors()));

        const EntityItem* read = find("tea'1");
        QVERIFY(read);
        QCOMPARE(read->getNama(), QString("Name of TEA'1"));
        QCOMPARE(read->getItemType(), int(EntityItem::SRV));
        QVERIFY(read->getIsGroup());
        QCOMPARE(read->getJenis()->getNama(), QString("Drinks"));
        QCOMPARE(read->getSatuan()->getKode(), QString("pcs"));
        QCOMPARE(read->getHargaBeli()->getCurrency(), QString("Rp"));
        QCOMPARE(read->getHargaBeli()->rawAmount(), 12000);
        // Cents never reach the database.
        QCOMPARE(read->getHargaJualLokal()->getCurrency(), QString("$"));
        QCOMPARE(read->getHargaJualLokal()->rawAmount(), 1200);
        QVERIFY(!read->getHargaJualLuar());
        QCOMPARE(read->getNotes(), QString("strong"));
        QCOMPARE(read->getSalesAcctCode(), QString("4050"));
        QCOMPARE(read->getInventoryAcctCode(), QString("1200"));
        QCOMPARE(read->getCostOfSalesAcctCode(), QString("5000"));
    }

    void aSecondPriceIsKeptThoughNoFormShowsIt()
    {
        run("UPDATE item SET harga_jual_luar_currency = 'Rp', harga_jual_luar_amount = 700 WHERE kode = 'ns'");
        EntityItem* rice = find("ns");
        rice->setNama("Steamed rice");
        QVERIFY2(m_items->update(rice), qPrintable(m_items->takeErrors()));
        QCOMPARE(m_database->value("SELECT harga_jual_luar_amount FROM item WHERE nama = 'Steamed rice'").toInt(), 700);
    }

    void aNewItemStartsWithABalanceOfNothing()
    {
        EntityItem tea;
        fill(tea, "tea", "mnm", EntityItem::INV);
        QVERIFY2(m_items->insert(&tea), qPrintable(m_items->takeErrors()));

        auto* balances = service<BusinessStokAwal>("Beginning Balance");
        const EntityStokAwal* balance = balances->findByItemId(tea.getId());
        QVERIFY(balance);
        QCOMPARE(balance->getJumlah(), 0);
        QCOMPARE(balance->getHarga()->rawAmount(), 12000);
        QCOMPARE(balance->getItem()->getKode(), QString("tea"));
        QCOMPARE(balance->getItem()->getSatuan()->getKode(), QString("pcs"));
        QCOMPARE(balance->getDateTime().date(), QDate::currentDate());
        QCOMPARE(balances->findAll("TEA").size(), 1);
        QCOMPARE(balances->findAll(QString()).size(), count("item"));
    }

    void anItemWithoutItsBalanceIsNotSaved_data()
    {
        const auto row = addColumns<QStringList, QString>("causes", "said");
        row("a refused balance", {"ALTER TABLE stok_awal ADD CHECK (harga_amount < 100)"}, "stok_awal");
        row("refused at the very end",
            {"CREATE FUNCTION refuse() RETURNS trigger LANGUAGE plpgsql AS "
             "$$BEGIN RAISE EXCEPTION 'too dear'; END$$",
             "CREATE CONSTRAINT TRIGGER refuse AFTER INSERT ON stok_awal DEFERRABLE INITIALLY DEFERRED "
             "FOR EACH ROW WHEN (NEW.harga_amount >= 100) EXECUTE FUNCTION refuse()"},
            "too dear");
        row("no way to the server", {}, "create transaction failed\r\n");
    }
    void anItemWithoutItsBalanceIsNotSaved()
    {
        EntityItem tea;
        fill(tea, "tea", "mnm", EntityItem::INV);
        QFETCH(QStringList, causes);
        for (const QString& cause : qAsConst(causes))
            run(cause);
        if (causes.isEmpty()) {
            QSqlDatabase program = QSqlDatabase::database(QSqlDatabase::defaultConnection, false);
            program.close();
            program.setPort(1);
        }
        QVERIFY(!m_items->insert(&tea));
        QFETCH(QString, said);
        const QString errors = m_items->takeErrors();
        QVERIFY2(errors.contains(said), qPrintable(errors));
        QVERIFY(!causes.isEmpty() || m_database->open());
        QVERIFY(!tea.isSaved());
        QVERIFY(!find("tea"));

        tea.setHargaBeli(new Money(&tea, 99, "Rp"));
        QVERIFY2(m_items->insert(&tea), qPrintable(m_items->takeErrors()));
    }

    void itemsAreSearched_data()
    {
        const auto row = addColumns<QString, QString, QString, QStringList>("way", "filter", "type", "found");

        using L = QStringList;
        row("all", "any", "", "", L{"aym", "fr", "juice", "llp", "ns", "tea"});
        row("a part of a name", "any", "rice", "", L{"fr", "llp", "ns"});
        row("in whatever letters", "any", "FRI", "", L{"aym", "fr"});
        row("a part of a code", "any", "uic", "", L{"juice"});
        row("one type", "any", "", "mnm", L{"juice", "tea"});
        row("one type and a name", "any", "rice", "mnm", L{});
        row("stock", "stock", "", "", L{"aym", "ns", "tea"});
        row("stock of one type", "stock", "", "mnm", L{"tea"});
        row("stock by name", "stock", "rice", "", L{"ns"});
        row("menu", "menu", "", "", L{"fr", "juice", "llp"});
        row("menu of one type, by code", "menu", "JUI", "mnm", L{"juice"});
        row("an apostrophe", "menu", "o'", "", L{});
    }
    void itemsAreSearched()
    {
        FETCH(QString, way, filter, type);
        EntityItem tea;
        fill(tea, "tea", "mnm", EntityItem::INV);
        EntityItem juice;
        fill(juice, "juice", "mnm", EntityItem::SRV);
        QVERIFY(m_items->insert(&tea) && m_items->insert(&juice));

        const int typeId = type.isEmpty() ? -1 : service<BusinessJenisItem>("Item Type")->findByCode(type)->getId();
        const QList<KorEntity*> found = way == "stock"  ? m_items->searchByType(filter, typeId)
                                        : way == "menu" ? m_items->searchServices(filter, typeId)
                                                        : m_items->search(filter, type);
        QVERIFY2(!m_items->hasError(), qPrintable(m_items->takeErrors()));
        QTEST(codesOf(found), "found");
    }

    void aComponentIsNotDeletedBeforeItsParents()
    {
        run("INSERT INTO grouped_item (parent_id, original_item_id, jumlah, version) SELECT p.id, c.id, 1, 1 "
            "FROM item p, item c WHERE p.kode = 'llp' AND c.kode = 'ns'");
        QVERIFY(!m_items->remove(find("ns")));
        QCOMPARE(m_items->takeErrors(),
                 QString("This item is used by: Fried Rice\nRice with fresh vegetables. Please delete it first!\r\n"));
        QVERIFY(find("ns"));

        QVERIFY2(m_items->remove(find("fr")), qPrintable(m_items->takeErrors()));
        QCOMPARE(count("grouped_item"), 1);
        QVERIFY2(m_items->remove(find("llp")), qPrintable(m_items->takeErrors()));
        QVERIFY2(m_items->remove(find("ns")), qPrintable(m_items->takeErrors()));
        QCOMPARE(count("stok_awal"), 1);
    }

    void aFailedLookForParentsDeletesNothing()
    {
        EntityItem* vegetables = find("llp");
        run("ALTER TABLE grouped_item RENAME TO elsewhere");
        QVERIFY(!m_items->remove(vegetables));
        QCOMPARE(m_items->errors().keys(), QStringList{"remove"});
        m_items->clearErrors();
        QVERIFY(find("llp"));
    }

private:
    [[nodiscard]] EntityItem* find(const QString& code) { return m_items->findByCode(code); }
    void fill(EntityItem& item, const QString& code, const QString& typeCode, EntityItem::ItemClass itemClass)
    {
        item.setKode(code);
        item.setNama("Name of " + code);
        item.setItemType(itemClass);
        item.setJenis(service<BusinessJenisItem>("Item Type")->findByCode(typeCode));
        item.setSatuan(service<BusinessSatuan>("Unit")->findByCode("pcs"));
        item.setHargaBeli(new Money(&item, 12000, "Rp"));
        item.setHargaJualLokal(new Money(&item, 12.5, "$"));
        item.setSalesAcctCode("4050");
        item.setInventoryAcctCode("1200");
        item.setCostOfSalesAcctCode("5000");
    }

    BusinessItem* m_items = nullptr;
    BusinessGroupedItem* m_components = nullptr;
};

QTEST_MAIN(TestItems)
#include "tst_items.moc"
