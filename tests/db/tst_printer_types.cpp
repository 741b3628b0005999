#include "pos/printing/printer/BusinessPrinterType.h"
#include "support/DatabaseTest.h"

class TestPrinterTypes : public DatabaseTest
{
    Q_OBJECT

protected:
    void prepare() override
    {
        run("DELETE FROM printer_type");
        m_service = service<BusinessPrinterType>("Printer Type");
        QVERIFY(m_service);
    }

private slots:
    void aModelIsFoundByItsExactName()
    {
        QVERIFY2(add("GENERIC-ESC-POS", "27#112#0#60#120", "29#V#66#0"), qPrintable(m_service->takeErrors()));
        const EntityPrinterType* model = m_service->findByType("GENERIC-ESC-POS");
        QVERIFY(model);
        QCOMPARE(model->getCashDrawerCmd(), QString("27#112#0#60#120"));
        QCOMPARE(model->getCutPapperCmd(), QString("29#V#66#0"));
        for (const QString& name : {QString("generic-esc-pos"), QString("GENERIC"), QString(""), QString("' OR ''='")})
            QVERIFY2(!m_service->findByType(name), qPrintable(name));
        QVERIFY(!m_service->hasError());
    }

    void modelsAreListedByName()
    {
        QVERIFY(add("GENERIC-ESC-POS", "", "29#V#66#0") && add("EPSON-TM-U220", "", "27#112") && add("BARE", "", ""));
        QStringList names;
        const QList<EntityPrinterType*> models = m_service->getAll();
        for (const EntityPrinterType* model : models)
            names.append(model->getPrinterType());
        QCOMPARE(names, QStringList({"BARE", "EPSON-TM-U220", "GENERIC-ESC-POS"}));
    }

    void aNameIsGivenOnce()
    {
        QVERIFY(add("EPSON-TM-U220", "", ""));
        QVERIFY(!add("EPSON-TM-U220", "", ""));
        QVERIFY(m_service->errors().contains("insert"));
        m_service->clearErrors();
    }

    void whatWentWrongIsToldUnderTheOperation()
    {
        run("ALTER TABLE printer_type RENAME TO elsewhere");
        QVERIFY(m_service->getAll().isEmpty());
        QVERIFY(!m_service->findByType("EPSON-TM-U220"));
        QCOMPARE(m_service->errors().keys(), QStringList({"findByType", "getAll"}));
        m_service->clearErrors();
    }

private:
    bool add(const QString& name, const QString& drawer, const QString& cut)
    {
        EntityPrinterType model;
        model.setPrinterType(name);
        model.setCashDrawerCmd(drawer);
        model.setCutPapperCmd(cut);
        return m_service->insert(&model);
    }

    BusinessPrinterType* m_service = nullptr;
};

QTEST_MAIN(TestPrinterTypes)
#include "tst_printer_types.moc"
