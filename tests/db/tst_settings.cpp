#include "app/configuration/BusinessConfiguration.h"
#include "support/DatabaseTest.h"

#include <QDir>
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

/** The settings that all workstations share. */
class TestSettings : public DatabaseTest
{
    Q_OBJECT

protected:
    void prepare() override
    {
        run("DELETE FROM appconfig");
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
        run("INSERT INTO appconfig (appkey, is_json, appvalue, version) VALUES ('localization', true, '" + stored +
            "', 1)");
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

private:
    BusinessConfiguration* m_settings = nullptr;
};

QTEST_MAIN(TestSettings)
#include "tst_settings.moc"
