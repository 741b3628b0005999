#pragma once

#include "kor/system/KorLogger.h"

#include <QList>
#include <QObject>
#include <QPointer>
#include <QStringList>

class KorBusinessLogic;
class KorDataMapper;
class KorEntity;

/**
 * Installs a database, or updates an installed one to the program's version: tables, first rows, permissions. A failed
 * step is reported as a status line and in the log, and the run continues. Call process() directly or from a worker
 * thread; create the object on the application's thread.
 */
class KorInstaller : public QObject
{
    Q_OBJECT

public:
    enum InstallType { FreshInstall = 1, UpdateInstall = 2 };

    explicit KorInstaller(QObject* parent = nullptr);

    virtual void addMappers() {}
    virtual void insertInitialData() {}
    virtual void registerPermissions() {}
    /** Called last, only if the run was not cut short: records that the database is up to date. */
    virtual void recordCompletion() {}
    /** The version of the existing tables; 0 if the database does not say. */
    [[nodiscard]] virtual double installedVersion() const { return 0; }
    /** Why this database must not be changed; empty if it may be. */
    [[nodiscard]] virtual QString objection() const { return {}; }

    bool addMapper(KorDataMapper* mapper);
    /** Always returns true; see the status lines and failures() for errors. */
    bool install();

    /** True if a step failed that should not fail on a correct database. */
    [[nodiscard]] bool failed() const { return m_failed; }
    /** Status lines of the failed steps in order, including failures that are expected. */
    [[nodiscard]] const QStringList& failures() const { return m_failures; }

    [[nodiscard]] int getType() const { return m_installType; }
    void setType(int type) { m_installType = type; }
    void setLogger(KorLogger* logger) { m_logger = logger; }
    [[nodiscard]] double getAppVersion() const { return m_appVersion; }
    void setAppVersion(double version) { m_appVersion = version; }
    [[nodiscard]] double getFromVersion() const { return m_fromVersion; }
    void setFromVersion(double version) { m_fromVersion = version; }
    [[nodiscard]] int getPercent() const { return m_percent; }
    void setPercent(int percent) { m_percent = percent; }
    void setStatus(const QString& status);

public slots:
    void process();

signals:
    void onProgress(int perc, const QString& status);
    void finished();
    /** The installation could not start. */
    void error(const QString& err);
    /** Follows the status line of a failed step; reasons are the server's messages, empty for an expected failure. */
    void stepFailed(const QString& status, const QStringList& reasons, bool expected);

protected:
    [[nodiscard]] bool isFresh() const { return m_installType == FreshInstall; }
    /** Emits, logs and counts a status line. */
    void reportFailure(const QString& text, const QStringList& reasons = {}, bool expected = false);
    /** Reports a service's error text; false, and no report, for an empty text. */
    bool reportAny(const QString& failure);
    /** Inserts through the service; false after reporting its errors. */
    bool insertRow(KorBusinessLogic* service, KorEntity* entity);
    void log(const QString& message);

private:
    [[nodiscard]] bool begin();
    void end();
    void step(int percent, const QString& status);
    void processMappers();
    [[nodiscard]] bool processMapper(KorDataMapper* mapper);
    [[nodiscard]] bool updateTable(KorDataMapper* mapper);
    [[nodiscard]] bool growTable(KorDataMapper* mapper);
    void reportTable(KorDataMapper* mapper);

    int m_installType = FreshInstall;
    double m_fromVersion = 0;
    double m_appVersion = 0;
    QList<KorDataMapper*> m_mappers;
    QString m_status;
    QPointer<KorLogger> m_logger;
    int m_percent = 0;
    QStringList m_failures;
    bool m_failed = false;
    double m_installedVersion = 0;
    // A table or a column of a later version could not be made.
    bool m_incomplete = false;
};
