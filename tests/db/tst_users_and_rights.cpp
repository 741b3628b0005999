#include "app/access/BusinessPermission.h"
#include "app/access/BusinessUser.h"
#include "app/access/BusinessUserAccess.h"
#include "app/access/BusinessUserGroup.h"
#include "app/access/DataMapperUser.h"
#include "app/access/EntityAccess.h"
#include "app/context/AccessCheck.h"
#include "app/context/EntityUser.h"
#include "support/DatabaseTest.h"
#include "support/SlowNeighbour.h"

#include <ctime>

namespace
{
const QString emptyDigest = "d41d8cd98f00b204e9800998ecf8427e";
const QString secretDigest = "5ebe2294ecd0e0f08eab7690d2a6ee69"; // of "secret"
} // namespace

/** The login and the rights of groups. */
class TestUsersAndRights : public DatabaseTest
{
    Q_OBJECT

protected:
    void prepare() override
    {
        run("TRUNCATE users, user_group, business, permissions, access RESTART IDENTITY CASCADE");
        run("INSERT INTO user_group (name, version) VALUES ('kasir', 1), ('admin', 1);"
            "INSERT INTO business (name, version) VALUES ('Table', 1), ('Unit', 1);"
            "INSERT INTO permissions (permission_name, permission_key, business_id, version) VALUES "
            "('Add table', 0, 1, 1), ('Update table', 1, 1, 1), ('Delete table', 2, 1, 1), "
            "('Manage unit', 0, 2, 1)");
        m_users = service<BusinessUser>("User");
        m_access = service<BusinessUserAccess>("User Access");
        m_kasir = service<BusinessUserGroup>("User Group")->findByGroupName("KASIR");
        QVERIFY(m_kasir);
    }

private slots:
    void aLoginNeedsTheExactNameAndPassword_data()
    {
        const auto row = addColumns<QString, QString, bool>("name", "password", "accepted");
        row("right", "ann", "secret", true);
        row("wrong password", "ann", "guess", false);
        row("password in other letters", "ann", "Secret", false);
        row("empty password", "ann", "", false);
        row("the stored digest", "ann", secretDigest, false);
        row("name in other letters", "Ann", "secret", false);
        row("unknown name", "bob", "secret", false);
        row("SQL", "ann' --", "secret", false);
    }
    void aLoginNeedsTheExactNameAndPassword()
    {
        FETCH(QString, name, password);
        QFETCH(bool, accepted);
        addAnn("secret");
        AppContext::instance()->setCurrentUser(nullptr);
        QCOMPARE(m_users->login(name, password), accepted);
        QVERIFY(!m_users->hasError());
        const EntityUser* current = AppContext::instance()->currentUser();
        QCOMPARE(current != nullptr, accepted);
        if (accepted) {
            QCOMPARE(current->getUserName(), QString("ann"));
            QCOMPARE(current->getPassword(), QString());
            QCOMPARE(current->getGroup()->getGroupName(), QString("kasir"));
        }
    }

    void aLoginWithoutTheServerSaysWhy()
    {
        addAnn("secret");
        m_database->killConnections();
        QVERIFY(!m_users->login("ann", "secret"));
        QVERIFY(m_users->errors().contains("username"));
        m_users->clearErrors();
    }

    void aLoginIsGivenAwayOnce_data()
    {
        addRows<bool>("isRenamed", {{"to a new user", false}, {"to a user who gets another name", true}});
    }
    void aLoginIsGivenAwayOnce()
    {
        QFETCH(bool, isRenamed);
        EntityUser user;
        user.setFirstName("Bob");
        user.setLastName("Ash");
        user.setUserName(isRenamed ? "bob" : "ann");
        user.setGroup(m_kasir);
        if (isRenamed) {
            QVERIFY(m_users->insert(&user));
            user.setUserName("ann");
        }
        // Another workstation also found the name free and saves first.
        const SlowNeighbour neighbour(
            *m_database, {"INSERT INTO users (first_name, last_name, username, password, user_group_id, currency, "
                          "version) VALUES ('Ann', 'Lee', 'ann', '', 1, 'Rp', 1)"});
        QVERIFY(!(isRenamed ? m_users->update(&user) : m_users->insert(&user)));
        QCOMPARE(m_users->takeErrors().trimmed(), QString("Username already exists"));
        QCOMPARE(count("users WHERE username = 'ann'"), 1);
    }

    void aSessionHasTheWorkstationsTimeZone_data()
    {
        const auto row = addColumns<QByteArray, QString>("zone", "offset");
        row("by its name", QByteArray("Asia/Tokyo"), "09:00:00");
        row("by a file", QByteArray(":/usr/share/zoneinfo/Asia/Tokyo"), "09:00:00");
        row("by a file without the colon", QByteArray("/usr/share/zoneinfo/Asia/Tokyo"), "09:00:00");
        row("by its rule, east", QByteArray("HERE-05:30"), "05:30:00");
        row("by its rule, west", QByteArray("HERE3:30"), "-03:30:00");
    }
    void aSessionHasTheWorkstationsTimeZone()
    {
        QFETCH(QByteArray, zone);
        const QByteArray former = qgetenv("TZ");
        qputenv("TZ", zone);
        tzset();
        const bool isOpen = m_database->open();
        KorQuery query;
        const bool told =
            isOpen && query.exec("select extract(timezone from now()) * interval '1 second'") && query.next();
        const QString offset =
            told ? query.value(0).toString() : AppContext::instance()->databaseManager()->lastErrorText();
        if (former.isNull())
            qunsetenv("TZ");
        else
            qputenv("TZ", former);
        tzset();
        QTEST(offset, "offset");
    }

    void passwordsAreStoredAsDigests_data()
    {
        const auto row = addColumns<QString, QString, QString>("first", "second", "stored");
        row("an empty box keeps it", "secret", "", secretDigest);
        row("a new one replaces it", "old", "secret", secretDigest);
        row("none at all is allowed", "", "", emptyDigest);
        row("beyond Latin", "x", QString::fromUtf8("пароль"), "e242f36f4f95f12966da8fa2efd59992");
    }
    void passwordsAreStoredAsDigests()
    {
        FETCH(QString, first, second);
        const int id = addAnn(first);
        QCOMPARE(storedPassword(), DataMapperUser::digest(first));
        auto* ann = static_cast<EntityUser*>(m_users->find(id));
        ann->setFirstName("Anne");
        ann->setPassword(second);
        QVERIFY2(m_users->update(ann), qPrintable(m_users->takeErrors()));
        QTEST(storedPassword(), "stored");
        QCOMPARE(value("SELECT first_name FROM users"), QString("Anne"));
    }

    void aNewUserGetsTheCurrencyOfTheHouse_data()
    {
        const auto row = addColumns<QString, QString>("locale", "currency");
        row("dollars", "en_US", "$");
        row("rupiah", "id_ID", "Rp");
        row("a locale without one", "", "");
    }
    void aNewUserGetsTheCurrencyOfTheHouse()
    {
        QFETCH(QString, locale);
        AppContext::instance()->setLocale(locale);
        addAnn("secret");
        QTEST(value("SELECT currency FROM users"), "currency");
    }

    void usersAreFoundByAnyOfTheirNames()
    {
        addAnn("secret");
        QCOMPARE(m_users->findAll(QString()).size(), 1);
        QCOMPARE(m_users->findAll("MARTI").size(), 1);
        QCOMPARE(m_users->findAll("ann's").size(), 0);
        QCOMPARE(m_users->search("Marti").size(), 1);
        QCOMPARE(m_users->search("marti").size(), 0);
        QCOMPARE(m_users->findByGroup(m_kasir->getId()).size(), 1);
        QCOMPARE(m_users->findByGroup(m_kasir->getId() + 1).size(), 0);
    }

    void aGrantIsChangedNotDoubled()
    {
        auto* permission = permissionOf("Delete table");
        for (int grant : {EntityAccess::Owner, EntityAccess::All, EntityAccess::None}) {
            QVERIFY2(m_access->setGrant(m_kasir, permission, grant), qPrintable(m_access->takeErrors()));
            QCOMPARE(m_database->value("SELECT grant_type FROM access").toInt(), grant);
        }
        QCOMPARE(count("access"), 1);
        const EntityAccess* access = m_access->findAccess(m_kasir->getId(), permission->getId());
        QCOMPARE(access->getGroup()->getGroupName(), QString("kasir"));
        QCOMPARE(access->getPermission()->getPermissionName(), QString("Delete table"));
        QCOMPARE(access->getPermission()->getBusiness()->getName(), QString("Table"));
    }

    void theLoginLoadsTheRightsOfTheGroup()
    {
        QVERIFY(m_access->setGrant(m_kasir, permissionOf("Add table"), EntityAccess::All));
        QVERIFY(m_access->setGrant(m_kasir, permissionOf("Delete table"), EntityAccess::Owner));
        QVERIFY(m_access->setGrant(m_kasir, permissionOf("Manage unit"), EntityAccess::None));
        const int ann = addAnn("secret");
        const int records = AppContext::instance()->liveEntities().size();
        QVERIFY(m_users->login("ann", "secret"));
        QVERIFY(AppContext::instance()->liveEntities().size() <= records + 2); // the user and the group that were read

        EntityUserGroup own;
        own.setCreatedBy(ann);
        EntityUserGroup foreign;
        foreign.setCreatedBy(ann + 1);
        QVERIFY(checkAccess("Table", 0, &foreign));
        QVERIFY(checkAccess("Table", 2, &own));
        QVERIFY(checkAccess("Table", 2, nullptr));
        QVERIFY(!checkAccess("Table", 2, &foreign));
        QVERIFY(!checkAccess("Table", 1));
        QVERIFY(!checkAccess("Unit", 0));
        QCOMPARE(AppContext::instance()->accessCaptions()->value("Unit0"), QString("Manage unit"));

        // A change takes effect at the next login.
        QVERIFY(m_access->setGrant(m_kasir, permissionOf("Add table"), EntityAccess::None));
        QVERIFY(checkAccess("Table", 0));
        QVERIFY(m_users->login("ann", "secret"));
        QVERIFY(!checkAccess("Table", 0));
    }

    void permissionsAreListedByServiceAndName()
    {
        auto* permissions = service<BusinessPermission>("Permission");
        const EntityBusiness* table = permissions->getBusinessByName("Table");
        QVERIFY(table);
        QCOMPARE(permissions->getBusinessByName("table"), nullptr);
        QCOMPARE(permissions->getBusinesses().size(), 2);
        QStringList names;
        for (const auto* permission : castAll<EntityPermission>(permissions->getPermissionByBusiness(table->getId())))
            names.append(permission->getPermissionName());
        QCOMPARE(names, (QStringList{"Add table", "Delete table", "Update table"}));
        QCOMPARE(permissions->findByKey(2, table->getId())->getPermissionName(), QString("Delete table"));
        QCOMPARE(permissions->findByKey(3, table->getId()), nullptr);
        QVERIFY(!permissions->hasError());
    }

private:
    int addAnn(const QString& password)
    {
        EntityUser ann;
        ann.setFirstName("Ann");
        ann.setLastName("Martin");
        ann.setUserName("ann");
        ann.setPassword(password);
        ann.setGroup(m_kasir);
        if (!m_users->insert(&ann))
            qWarning().noquote() << m_users->takeErrors();
        return ann.getId();
    }
    QString storedPassword() { return value("SELECT password FROM users"); }
    static EntityPermission* permissionOf(const QString& name)
    {
        return static_cast<EntityPermission*>(service<BusinessPermission>("Permission")->find("permission_name", name));
    }

    BusinessUser* m_users = nullptr;
    BusinessUserAccess* m_access = nullptr;
    EntityUserGroup* m_kasir = nullptr;
};

QTEST_MAIN(TestUsersAndRights)
#include "tst_users_and_rights.moc"
