#include "app/configuration/BusinessConfiguration.h"
#include "pos/masterdata/company/BusinessDataPerusahaan.h"
#include "pos/masterdata/company/EntityDataPerusahaan.h"
#include "pos/printing/printer/BusinessPrinterType.h"
#include "support/DatabaseTest.h"

#include <QJsonDocument>
#include <QJsonObject>

namespace
{
class EntityConfigBell : public EntityAppConfig
{
    Q_OBJECT
    CONFIG_MEMBER(Tone, "bell_tone")

public:
    using EntityAppConfig::EntityAppConfig;
};
} // namespace

/** What all workstations share: the settings, the restaurant's own data with its logo, the models of printers. */
class TestSettings : public DatabaseTest
{
    Q_OBJECT

protected:
    void prepare() override
    {
        run("DELETE FROM appconfig; DELETE FROM printer_type");
        m_company = service<BusinessDataPerusahaan>("Company Profile");
        m_types = service<BusinessPrinterType>("Printer Type");
        m_settings = service<BusinessConfiguration>("Configuration");
    }
    void tidy() override { QDir(QCoreApplication::applicationDirPath()).rmdir("reports"); }

private slots:
    void theMembersOfARowAreStoredAsOneObject()
    {
        EntityAppConfig row;
        row.setKey("cook's \"corner\"");
        row.setIsStoredAsJSON(true);
        row.setMember("name", "Dapur \"1\" 100%\r\nGrün");
        row.setMember("copies", "2");
        QVERIFY2(m_settings->insert(&row), qPrintable(m_settings->takeErrors()));
        const auto stored = QJsonDocument::fromJson(m_database->value("SELECT appvalue FROM appconfig").toByteArray());
        QCOMPARE(stored.object(), (QJsonObject{{"copies", "2"}, {"name", "Dapur \"1\" 100%\r\nGrün"}}));

        EntityAppConfig* found = m_settings->getConfig("cook's \"corner\"");
        QVERIFY(found);
        QCOMPARE(found->members(), row.members());
        QCOMPARE(found->member("never set"), QString());
        found->setMember("copies", "3");
        QVERIFY(m_settings->update(found));
        QCOMPARE(m_settings->getConfig("cook's \"corner\"")->member("copies"), QString("3"));
    }

    void aDamagedRowHasNoMembersAndIsNoError_data()
    {
        const auto row = addColumns<QString, QString>("stored", "locale");
        row("cut off", "{\"locale\": \"id_", "en_US");
        row("a list", "[\"id_ID\"]", "en_US");
        row("empty", "", "en_US");
        row("whole", "{\"locale\": \"id_ID\"}", "id_ID");
    }
    void aDamagedRowHasNoMembersAndIsNoError()
    {
        QFETCH(QString, stored);
        insertRows(*m_database, "appconfig",
                   {{"appkey", "'localization'"}, {"is_json", "true"}, {"appvalue", '\'' + stored + '\''}});
        auto* localization = m_settings->getLocalization();
        QVERIFY(localization->isSaved());
        QTEST(localization->getLocale(), "locale");
        QCOMPARE(localization->getDateTimeFormat(), QString("d MMM yyyy"));
        QVERIFY(!m_settings->hasError());
    }

    void numbersAndFlagsOfOtherHandsAreReadAsTexts()
    {
        run("INSERT INTO appconfig (appkey, is_json, appvalue, version) VALUES "
            "('x', true, '{\"columns\": 40, \"cut\": true, \"none\": null}', 1)");
        const EntityAppConfig* row = m_settings->getConfig("x");
        QCOMPARE(row->member("columns"), QString("40"));
        QCOMPARE(row->member("cut"), QString("true"));
        QCOMPARE(row->member("none"), QString());
    }

    void withoutARowTheDefaultsStandUnsaved()
    {
        auto* localization = m_settings->getLocalization();
        QVERIFY(!localization->isSaved());
        QCOMPARE(localization->getKey(), QString("localization"));
        QCOMPARE(localization->getLocale(), QString("en_US"));
        QCOMPARE(localization->getDateTimeFormat(), QString("d MMM yyyy"));
        QCOMPARE(m_settings->getValue("app_version"), QString(""));
        QCOMPARE(m_settings->getConfig("app_version"), nullptr);
        QCOMPARE(m_settings->getConfig(""), nullptr);
        EntityAppConfig otherwise;
        QCOMPARE(m_settings->getValue("app_version", &otherwise), &otherwise);
        QVERIFY(!m_settings->hasError());
    }

    void aNewDatabaseGetsItsFirstRowsOnce_data()
    {
        const auto row = addColumns<QString, QString, QString>("dateFormat", "locale", "expected");
        row("defaults", "", "", "d MMM yyyy en_US");
        row("chosen", "dd/MM/yy", "id_ID", "dd/MM/yy id_ID");
    }
    void aNewDatabaseGetsItsFirstRowsOnce()
    {
        FETCH(QString, dateFormat, locale);
        QDir folder(QCoreApplication::applicationDirPath());
        QVERIFY(folder.mkpath("reports") && folder.cd("reports"));
        QVERIFY2(m_settings->insertInitialData(dateFormat, locale), qPrintable(m_settings->takeErrors()));
        const auto* localization = m_settings->getLocalization();
        QTEST(localization->getDateTimeFormat() + ' ' + localization->getLocale(), "expected");
        QCOMPARE(m_settings->getValue("reports"), folder.absolutePath());

        QVERIFY(!m_settings->insertInitialData());
        QCOMPARE(m_settings->errors().keys(), QStringList{"insertinitialdata"});
        m_settings->clearErrors();
        QCOMPARE(count("appconfig"), 2);
    }

    void everyRowIsReadInTheClassOfItsKey()
    {
        m_settings->addType<EntityConfigBell>("bell_");
        for (const QString& key : {QString("bell_2"), QString("bell_1"), QString("bel")}) {
            EntityConfigBell bell;
            bell.setKey(key);
            bell.setIsStoredAsJSON(true);
            bell.setTone("ding " + key);
            QVERIFY(m_settings->insert(&bell));
        }
        QCOMPARE(m_settings->getConfig<EntityConfigBell>("bell_2")->getTone(), QString("ding bell_2"));
        QCOMPARE(m_settings->getConfig<EntityConfigBell>("bel"), nullptr);
        QStringList keys;
        for (const EntityAppConfig* bell : m_settings->getConfigsLike("bell_"))
            keys.append(bell->getKey());
        QCOMPARE(keys, (QStringList{"bell_2", "bell_1"}));
        QCOMPARE(m_settings->getConfigsLike("%ell").size(), 2);
    }

    void aLogoSavedAgainReplacesTheFormer()
    {
        QByteArray everyByte;
        for (int byte = 0; byte < 256; ++byte)
            everyByte.append(char(byte));
        for (const QByteArray& bytes : {QByteArray("first"), everyByte}) {
            EntityDataPerusahaan* profile = m_company->getData();
            QVERIFY(profile && profile->getLogo());
            profile->setNamaPerusahaan("Warung " + QString::number(bytes.size()));
            profile->getLogo()->setImageData(bytes);
            QVERIFY2(m_company->updateData(profile), qPrintable(m_company->takeErrors()));
        }
        const EntityDataPerusahaan* profile = m_company->getData();
        QCOMPARE(profile->getNamaPerusahaan(), QString("Warung 256"));
        QCOMPARE(profile->getLogo()->getImageData(), everyByte);
        QCOMPARE(count("images"), 1);
        QCOMPARE(count("data_perusahaan"), 1);
    }

    void aRestaurantWithoutALogoGetsOne()
    {
        run("DELETE FROM images");
        EntityDataPerusahaan* profile = m_company->getData();
        QVERIFY(!profile->getLogo());
        QVERIFY2(m_company->updateData(profile), qPrintable(m_company->takeErrors()));
        QCOMPARE(count("images"), 0);

        profile = m_company->getData();
        profile->setLogo(new EntityImage(profile));
        profile->getLogo()->setImageName(BusinessDataPerusahaan::logoName());
        profile->getLogo()->setImageData("picture");
        QVERIFY2(m_company->updateData(profile), qPrintable(m_company->takeErrors()));
        QCOMPARE(m_company->getData()->getLogo()->getImageData(), QByteArray("picture"));
    }

    void aLogoThatIsRefusedTakesTheProfileBack()
    {
        run("DELETE FROM images");
        EntityDataPerusahaan* profile = m_company->getData();
        const QString name = profile->getNamaPerusahaan();
        profile->setNamaPerusahaan("Half saved");
        profile->setLogo(new EntityImage(profile));
        QVERIFY(!m_company->updateData(profile));
        QCOMPARE(m_company->errors().keys(), QStringList{"updateData"});
        m_company->clearErrors();
        QCOMPARE(m_company->getData()->getNamaPerusahaan(), name);

        // The same form is saved once the cause is mended.
        profile->getLogo()->setImageName(BusinessDataPerusahaan::logoName());
        profile->getLogo()->setImageData("picture");
        QVERIFY2(m_company->updateData(profile), qPrintable(m_company->takeErrors()));
    }

    void aProfileThatIsMissingIsMade()
    {
        run("DELETE FROM data_perusahaan");
        QVERIFY(!m_company->getData() && !m_company->hasError());
        EntityDataPerusahaan profile;
        profile.setNamaPerusahaan("Warung");
        QVERIFY2(m_company->updateData(&profile), qPrintable(m_company->takeErrors()));
        QCOMPARE(m_company->getData()->getNamaPerusahaan(), QString("Warung"));
    }

    void aModelIsFoundByItsExactName()
    {
        QVERIFY2(add("GENERIC-ESC-POS", "27#112#0#60#120", "29#V#66#0"), qPrintable(m_types->takeErrors()));
        const EntityPrinterType* model = m_types->findByType("GENERIC-ESC-POS");
        QVERIFY(model);
        QCOMPARE(model->getCashDrawerCmd(), QString("27#112#0#60#120"));
        QCOMPARE(model->getCutPapperCmd(), QString("29#V#66#0"));
        for (const QString& name : {QString("generic-esc-pos"), QString("GENERIC"), QString(""), QString("' OR ''='")})
            QVERIFY2(!m_types->findByType(name), qPrintable(name));
        QVERIFY(!m_types->hasError());
    }

    void modelsAreListedByName()
    {
        QVERIFY(add("GENERIC-ESC-POS", "", "29#V#66#0") && add("EPSON-TM-U220", "", "27#112") && add("BARE", "", ""));
        QStringList names;
        const QList<EntityPrinterType*> models = m_types->getAll();
        for (const EntityPrinterType* model : models)
            names.append(model->getPrinterType());
        QCOMPARE(names, QStringList({"BARE", "EPSON-TM-U220", "GENERIC-ESC-POS"}));
    }

    void aNameIsGivenOnce()
    {
        QVERIFY(add("EPSON-TM-U220", "", ""));
        QVERIFY(!add("EPSON-TM-U220", "", ""));
        QVERIFY(m_types->errors().contains("insert"));
        m_types->clearErrors();
    }

    void whatWentWrongIsToldUnderTheOperation()
    {
        run("ALTER TABLE printer_type RENAME TO elsewhere");
        QVERIFY(m_types->getAll().isEmpty());
        QVERIFY(!m_types->findByType("EPSON-TM-U220"));
        QCOMPARE(m_types->errors().keys(), QStringList({"findByType", "getAll"}));
        m_types->clearErrors();
    }

private:
    bool add(const QString& name, const QString& drawer, const QString& cut)
    {
        EntityPrinterType model;
        model.setPrinterType(name);
        model.setCashDrawerCmd(drawer);
        model.setCutPapperCmd(cut);
        return m_types->insert(&model);
    }

    BusinessConfiguration* m_settings = nullptr;
    BusinessDataPerusahaan* m_company = nullptr;
    BusinessPrinterType* m_types = nullptr;
};

QTEST_MAIN(TestSettings)
#include "tst_settings.moc"
