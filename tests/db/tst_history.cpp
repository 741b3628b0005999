#include "app/context/EntityUser.h"
#include "app/history/DataMapperHistory.h"
#include "app/registry/AppMapperRegistry.h"
#include "support/DatabaseTest.h"

#include <QCryptographicHash>
#include <QJsonDocument>

namespace
{
class EntityTip : public KorEntity
{
    Q_OBJECT
    KOR_PROPERTY(QDate, Day, QDate(2024, 11, 5))
    KOR_PROPERTY(bool, Shared, true)
    KOR_REFERENCE(EntityUser, Waiter)
    KOR_REFERENCE(Money, Tip)

public:
    using KorEntity::KorEntity;
};

class EntityTipWithANameThatIsMuchTooLongForTheJournalsColumn : public KorEntity
{
    Q_OBJECT

public:
    using KorEntity::KorEntity;
};
} // namespace

/** The journal of saved states. */
class TestHistory : public DatabaseTest
{
    Q_OBJECT

protected:
    void prepare() override { m_history = AppMapperRegistry::instance()->historyMapper(); }

private slots:
    void aRecordIsToldWithAllThatHangsOnIt()
    {
        EntityUserGroup group;
        group.setGroupName("kasir");
        EntityUser waiter;
        waiter.setGroup(&group);
        waiter.setUserName("Ann \"A\"");
        Money amount(nullptr, 12, "$");
        EntityTip tip;
        tip.setId(7);
        tip.setWaiter(&waiter);
        tip.setTip(&amount);

        const QJsonObject json = m_history->toJson(&tip);
        QCOMPARE(json.keys(), (QStringList{"CreatedBy", "CreatedTime", "Day", "Id", "Shared", "Tip", "UpdatedBy",
                                           "UpdatedTime", "Version", "Waiter", "objectName"}));
        QCOMPARE(json["Id"], QJsonValue("7"));
        QCOMPARE(json["Shared"], QJsonValue("true"));
        QCOMPARE(json["Day"], QJsonValue("2024-11-05"));
        QCOMPARE(json["CreatedTime"], QJsonValue(""));
        QCOMPARE(json["Waiter"].toObject()["UserName"], QJsonValue("Ann \"A\""));
        QCOMPARE(json["Waiter"].toObject()["Group"].toObject()["GroupName"], QJsonValue("kasir"));
        QCOMPARE(json["Tip"].toObject()["Amount"], QJsonValue("12"));
        QCOMPARE(json["Tip"].toObject()["Currency"], QJsonValue("$"));

        tip.setWaiter(nullptr);
        tip.setTip(nullptr);
        QVERIFY(m_history->toJson(&tip)["Waiter"].isNull());
        QVERIFY(m_history->toJson(&tip)["Tip"].isNull());
    }

    void aStateIsWrittenWithItsHash()
    {
        EntityUserGroup group;
        group.setId(5);
        group.setVersion(3);
        group.setGroupName("It's 100% ours");
        QVERIFY2(m_history->save(&group, 11, 2), qPrintable(m_history->takeError()));
        QVERIFY(m_history->save(&group, 11, 2));
        QCOMPARE(value("SELECT concat_ws('|', version_id, class_name, item_id, user_id, operation_id, "
                       "saved_date IS NOT NULL) FROM entities_history LIMIT 1"),
                 QString("3|EntityUserGroup|5|11|2|t"));
        const QByteArray json = value("SELECT data_json FROM entities_history").toUtf8();
        QCOMPARE(QJsonDocument::fromJson(json).object(), m_history->toJson(&group));
        QCOMPARE(m_database->value("SELECT sha1_hash FROM entities_history").toByteArray(),
                 QCryptographicHash::hash(json, QCryptographicHash::Sha1).toHex());
        QCOMPARE(m_database->value("SELECT count(DISTINCT sha1_hash) FROM entities_history").toInt(), 1);
    }

    void whatTheTableRefusesIsTold()
    {
        EntityTipWithANameThatIsMuchTooLongForTheJournalsColumn tip;
        QVERIFY(!m_history->save(&tip, 1, 1));
        const QString error = m_history->takeError();
        QVERIFY(error.contains("value too long"));
        QVERIFY(error.contains("\r\ninsert into entities_history ( version_id,"));
    }

private:
    DataMapperHistory* m_history = nullptr;
};

QTEST_MAIN(TestHistory)
#include "tst_history.moc"
