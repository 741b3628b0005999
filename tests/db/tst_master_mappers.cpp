#include "kor/entity/KorMetaDataMap.h"
#include "kor/persistence/KorMigration.h"
#include "pos/masterdata/account/BusinessBank.h"
#include "pos/masterdata/agent/DataMapperAgent.h"
#include "pos/masterdata/supplier/BusinessSupplier.h"
#include "pos/registry/PosMapperRegistry.h"
#include "support/DatabaseTest.h"
#include "support/MasterFamilies.h"

#include <algorithm>

namespace
{
/** A value that fits the column and differs from round to round. */
QVariant sample(const QString& column, QVariant::Type type, int round)
{
    switch (type) {
    case QVariant::Int:
        return round;
    case QVariant::Double:
        return 12.5 + round;
    case QVariant::Bool:
        return round % 2 == 0;
    case QVariant::Date:
        return QDate(2026, 2, 28).addDays(round);
    default:
        return column.left(12) + "'%" + QString::number(round);
    }
}

/** The record's own columns; references have a separate test. */
QList<KorColumnMap*> ownColumns(const MasterFamily& family)
{
    QList<KorColumnMap*> columns = family.mapper()->metaData()->columns();
    columns.erase(std::remove_if(columns.begin(), columns.end(),
                                 [](const KorColumnMap* column) { return column->propertyPath().contains('.'); }),
                  columns.end());
    return columns;
}

void write(const MasterFamily& family, KorEntity* record, int round)
{
    for (const KorColumnMap* column : ownColumns(family)) {
        const QVariant now = record->property(column->propertyPathUtf8());
        record->setProperty(column->propertyPathUtf8(), sample(column->columnName(), now.type(), round));
    }
}

bool holds(const MasterFamily& family, const KorEntity* record, int round)
{
    for (const KorColumnMap* column : ownColumns(family)) {
        const QVariant value = record->property(column->propertyPathUtf8());
        if (value != sample(column->columnName(), value.type(), round)) {
            qWarning() << column->columnName() << "is" << value;
            return false;
        }
    }
    return true;
}

QStringList names(const QList<KorEntity*>& records)
{
    QStringList result;
    for (const KorEntity* record : records)
        result.append(record->property("Nama").toString());
    return result;
}
} // namespace

/** The behavior of all master data with a code and a name. */
class TestMasterMappers : public DatabaseTest
{
    Q_OBJECT

protected:
    void prepare() override
    {
        for (const MasterFamily& family : masterFamilies())
            run("TRUNCATE " + family.table + " CASCADE");
    }

private slots:
    void initTestCase() { keepDatabase(); }

    void everyFieldIsKeptAndChanged_data() { addFamilyRows(); }
    void everyFieldIsKeptAndChanged()
    {
        const MasterFamily& family = currentFamily();
        AppMasterMapper* mapper = family.mapper();
        const std::unique_ptr<KorEntity> record(mapper->createEntity());
        write(family, record.get(), 1);
        QVERIFY2(mapper->insert(record.get()), qPrintable(mapper->takeError()));

        KorEntity* found = mapper->findById(record->getId());
        QVERIFY(found);
        QVERIFY(holds(family, found, 1));
        QCOMPARE(found->getCreatedBy(), 1);

        write(family, found, 2);
        QVERIFY2(mapper->update(found), qPrintable(mapper->takeError()));
        const KorEntity* changed = mapper->findById(record->getId());
        QVERIFY(holds(family, changed, 2));
        QCOMPARE(changed->getVersion(), 2);
        QCOMPARE(changed->getUpdatedBy(), 1);
    }

    void aCodeIsFoundInWhateverLetters_data() { addFamilyRows(); }
    void aCodeIsFoundInWhateverLetters()
    {
        AppMasterMapper* mapper = currentFamily().mapper();
        const int id = saved("aBc", "Anything")->getId();
        for (const char* typed : {"abc", "ABC", "aBc"}) {
            const KorEntity* found = mapper->findByCode(typed);
            QVERIFY(found);
            QCOMPARE(found->getId(), id);
        }
        for (const char* typed : {"ab", "a%", "", "abc'"})
            QVERIFY(!mapper->findByCode(typed));
        QVERIFY(!mapper->hasError());
    }

    void aSearchLooksIntoCodeAndName_data() { addFamilyRows(); }
    void aSearchLooksIntoCodeAndName()
    {
        const MasterFamily& family = currentFamily();
        for (const auto& row : {qMakePair(QString("c9"), QString("Zebra's")), qMakePair(QString("b8"), QString("Ape")),
                                qMakePair(QString("a7"), QString("Mole"))})
            run(family.insertStatement(row.first, row.second));
        // An update moves the row to the end of the table, so an unsorted list would change its order.
        run("UPDATE " + family.table + " SET version = 1 WHERE kode = 'c9'");

        QStringList all = names(family.mapper()->findAll(QString()));
        if (family.order == MasterFamily::AsStored || family.order == MasterFamily::Unknown)
            all.sort();
        QCOMPARE(all, (family.order == MasterFamily::ById ? QStringList{"Zebra's", "Ape", "Mole"}
                                                          : QStringList{"Ape", "Mole", "Zebra's"}));
        QCOMPARE(names(family.mapper()->findAll("OLE")), QStringList{"Mole"});
        QCOMPARE(names(family.mapper()->findAll("B8")), QStringList{"Ape"});
        QCOMPARE(names(family.mapper()->findAll("'")), QStringList{"Zebra's"});
        QCOMPARE(names(family.mapper()->findAll("50% off")), QStringList());
        QVERIFY(!family.mapper()->hasError());
    }

    /** For the families that existed before codes became longer. */
    void anOlderTableGetsItsLongerCodes_data()
    {
        const auto row = addColumns<int>("family");
        for (int i = 0; i < masterFamilies().size(); ++i) {
            const QList<KorMigration*> migrations = masterFamilies().at(i).mapper()->migrations();
            if (!migrations.isEmpty())
                row(qPrintable(masterFamilies().at(i).service), i);
            qDeleteAll(migrations);
        }
    }
    void anOlderTableGetsItsLongerCodes()
    {
        const MasterFamily& family = currentFamily();
        run("ALTER TABLE " + family.table + " ALTER COLUMN kode TYPE varchar(8)");
        QVERIFY(family.mapper()->migrate(1.2, 1.3));
        QCOMPARE(codeLength(family), 8);
        QVERIFY(family.mapper()->migrate(1.1, 1.1));
        QCOMPARE(codeLength(family), 20);
    }

    void olderSuppliersAndAgentsGetOneCodeEach()
    {
        for (const QString table : {"supplier", "agent"}) {
            const QString unique = "pg_constraint WHERE contype = 'u' AND conrelid = '" + table + "'::regclass";
            const int before = count(unique);
            QVERIFY(PosMapperRegistry::instance()->get(table)->migrate(1.0, 1.1));
            QCOMPARE(count(unique), before + 1);
        }
    }

    void aUnitsNameIsTakenOnceEvenUnderAnotherCode()
    {
        const MasterFamily& units = *std::find_if(masterFamilies().begin(), masterFamilies().end(),
                                                  [](const MasterFamily& one) { return one.service == "Unit"; });
        run(units.insertStatement("kg", "Kilogram"));
        const std::unique_ptr<KorEntity> second(units.mapper()->createEntity());
        second->setProperty("Kode", "kilo");
        second->setProperty("Nama", "Kilogram");
        QVERIFY(!units.mapper()->insert(second.get()));
        QVERIFY(units.mapper()->takeError().contains("satuan_nama_key"));
        second->setProperty("Kode", "kg");
        second->setProperty("Nama", "Kilo");
        QVERIFY(units.mapper()->insert(second.get()));
    }

    void aSupplierComesWithItsAccountInOneStatement()
    {
        const StatementCount statements;
        insert("bank", "id=41, kode='1010', nama='Cash on Hand'");
        insert("supplier", "kode='f', nama='Fish', bank_id=41");
        insert("supplier", "kode='b', nama='Beans'");
        auto* suppliers = service<BusinessSupplier>("Supplier");
        const QList<KorEntity*> found = suppliers->findByFilter(QString());
        QCOMPARE(names(found), (QStringList{"Beans", "Fish"}));
        QVERIFY(!static_cast<EntitySupplier*>(found.first())->getBank());
        auto* fish = static_cast<EntitySupplier*>(found.last());
        QCOMPARE(fish->getBank()->getNama(), QString("Cash on Hand"));
        QCOMPARE(names(suppliers->findByFilter("FI")), QStringList{"Fish"});
        QCOMPARE(statements.count(), 2);

        fish->setBank(nullptr);
        QVERIFY(suppliers->update(fish));
        QVERIFY(m_database->value("SELECT bank_id FROM supplier WHERE kode = 'f'").isNull());
    }

    void theProgramFindsTheAccountsItBooksOn()
    {
        const QStringList codes{"1010", "1020", "1100", "1200", "2000", "4050", "5000", "6650"};
        auto* accounts = service<BusinessBank>("Bank");
        QVERIFY(!accounts->cashOnHand());
        QVERIFY(!accounts->hasError());
        for (const QString& code : codes)
            insert("bank", "kode='" + code + '\'');
        const QList<EntityBank*> found{accounts->cashOnHand(),        accounts->checkingAccount(),
                                       accounts->accountReceivable(), accounts->inventory(),
                                       accounts->accountsPayable(),   accounts->salesOfMaterials(),
                                       accounts->costOfSales(),       accounts->commissionsExpense()};
        for (int i = 0; i < codes.size(); ++i)
            QCOMPARE(found.at(i)->getKode(), codes.at(i));
    }

private:
    KorEntity* saved(const QString& code, const QString& name)
    {
        run(currentFamily().insertStatement(code, name));
        return currentFamily().mapper()->findByCode(code);
    }
    int codeLength(const MasterFamily& family)
    {
        return value("SELECT character_maximum_length FROM information_schema.columns WHERE column_name = 'kode' AND "
                     "table_name = '" +
                     family.table + '\'')
            .toInt();
    }
};

QTEST_MAIN(TestMasterMappers)
#include "tst_master_mappers.moc"
