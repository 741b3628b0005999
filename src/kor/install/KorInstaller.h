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
 * Lays down a database, or brings an installed one up to the program's version: tables, first rows, permissions.
 * A failed step is told as a status line and in the log, and the run goes on. It works on the calling thread
 * (process() called directly) as well as on a thread that it was moved to; make it on the application's thread.
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
    /** The last step of a run that nothing broke off: the database is what this program wants. */
    virtual void recordCompletion() {}
    /** The version of the tables that are there; 0 where the database does not tell. */
    [[nodiscard]] virtual double installedVersion() const { return 0; }
    /** Why this database must not be touched; empty where nothing speaks against it. */
    [[nodiscard]] virtual QString objection() const { return {}; }

    bool addMapper(KorDataMapper* mapper);
    /** Always true: what failed is told by the status lines and by failures(). */
    bool install();

    /** Whether anything failed that does not fail on a database in good order as well. */
    [[nodiscard]] bool failed() const { return m_failed; }
    /** The status lines of the steps that failed, in order, those included that were expected to. */
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
    /** The installation could not begin. */
    void error(const QString& err);
    /** Beside the status line of a failed step: what the server said to it, nothing where it was expected to fail. */
    void stepFailed(const QString& status, const QStringList& reasons, bool expected);

protected:
    [[nodiscard]] bool isFresh() const { return m_installType == FreshInstall; }
    /** A status line that is also logged and counted. */
    void reportFailure(const QString& text, const QStringList& reasons = {}, bool expected = false);
    /** Reports what services say of a failure; false for an empty text, which reports nothing. */
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
