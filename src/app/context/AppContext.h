#pragma once

#include "kor/system/KorLogger.h"

#include <QMultiMap>
#include <QObject>
#include <QPair>
#include <QPointer>

#include <memory>

class DatabaseManager;
class EntityUser;
class KorEntity;

/**
 * Objects and values that all layers share: the logged-in user and the rights, the connection and its settings, the
 * formats, the main window, and the parent of all records that mappers create. It contains no logic of its own.
 */
class AppContext : public QObject
{
    Q_OBJECT

public:
    /** Business name to pairs of permission key and grant (0 none, 1 own records, 2 all). */
    using Rights = QMultiMap<QString, QPair<int, int>>;
    /** Business name followed by the key, to the permission's caption. */
    using Captions = QMap<QString, QString>;

    /** Created on first use; a child of the application object. */
    static AppContext* instance();
    ~AppContext() override;

    [[nodiscard]] EntityUser* currentUser() const { return m_currentUser; }
    /** Keeps a copy without the password and clears the rights. Null only removes the user. */
    void setCurrentUser(EntityUser* user);
    /** The id of the logged-in user; KorNoValue before the login. */
    [[nodiscard]] int currentUserId() const;
    [[nodiscard]] Rights* userRights() const { return m_userRights.get(); }
    [[nodiscard]] Captions* accessCaptions() const { return m_accessCaptions.get(); }

    [[nodiscard]] QString dateFormat() const { return m_dateFormat; }
    void setDateFormat(const QString& dateFormat) { m_dateFormat = dateFormat; }
    [[nodiscard]] QString locale() const { return m_locale; }
    void setLocale(const QString& locale) { m_locale = locale; }

    [[nodiscard]] DatabaseManager* databaseManager() const { return m_databaseManager; }
    /** Null deletes the current manager. Another one replaces it without deleting it. */
    void setDatabaseManager(DatabaseManager* manager);
    [[nodiscard]] KorLogger* logger() const { return m_logger; }
    void setLogger(KorLogger* logger);
    static void log(const QString& message);

    /**
     * The parent of new records: that of the thread's innermost EntityPoolScope, or else the main pool (null on a
     * worker).
     */
    [[nodiscard]] QObject* entityPool() const;
    [[nodiscard]] QObject* mainEntityPool() const { return m_entityPool.get(); }
    /**
     * Deletes every record that mappers created; grids that show some become empty. If an EntityPoolScope is active (a
     * form is open), it is done after the outermost scope has ended.
     */
    void resetEntityPool();
    /** Called when the outermost scope of the main thread has ended. */
    void recordsAreFree();
    [[nodiscard]] QList<KorEntity*> liveEntities() const;

    [[nodiscard]] QString dbHost() const { return m_dbHost; }
    void setDbHost(const QString& dbHost) { m_dbHost = dbHost; }
    [[nodiscard]] QString dbPort() const { return m_dbPort; }
    void setDbPort(const QString& dbPort) { m_dbPort = dbPort; }
    [[nodiscard]] QString dbName() const { return m_dbName; }
    void setDbName(const QString& dbName) { m_dbName = dbName; }
    [[nodiscard]] QString dbUser() const { return m_dbUser; }
    void setDbUser(const QString& dbUser) { m_dbUser = dbUser; }
    [[nodiscard]] QString dbPassword() const { return m_dbPassword; }
    void setDbPassword(const QString& dbPassword) { m_dbPassword = dbPassword; }

    [[nodiscard]] bool showDashboard() const { return m_showDashboard; }
    void setShowDashboard(bool show) { m_showDashboard = show; }
    [[nodiscard]] bool showSidebar() const { return m_showSidebar; }
    void setShowSidebar(bool show) { m_showSidebar = show; }
    [[nodiscard]] QObject* mainWindow() const { return m_mainWindow; }
    void setMainWindow(QObject* mainWindow) { m_mainWindow = mainWindow; }

private:
    explicit AppContext(QObject* parent);

    EntityUser* m_currentUser = nullptr;
    std::unique_ptr<Rights> m_userRights;
    std::unique_ptr<Captions> m_accessCaptions;
    QString m_dateFormat;
    DatabaseManager* m_databaseManager = nullptr;
    QPointer<KorLogger> m_logger;
    QString m_locale;
    std::unique_ptr<QObject> m_entityPool;
    bool m_resetIsDue = false;
    QString m_dbHost;
    QString m_dbPort;
    QString m_dbName;
    QString m_dbUser;
    QString m_dbPassword;
    bool m_showDashboard = false;
    bool m_showSidebar = false;
    QPointer<QObject> m_mainWindow;
};
