#pragma once

#include <QDir>
#include <QProcess>
#include <QString>

/**
 * The temporary PostgreSQL cluster of the test run. The test command starts one for all programs and passes its address
 * in the environment; a test program started alone starts its own.
 */
class TestCluster
{
public:
    static TestCluster& instance();
    ~TestCluster();
    Q_DISABLE_COPY(TestCluster)

    [[nodiscard]] const QString& host() const { return m_host; }
    [[nodiscard]] int port() const { return m_port; }
    [[nodiscard]] const QString& user() const { return m_user; }
    /** Runs a statement on the maintenance database; an error ends the test program. */
    void run(const QString& statement);
    /** Runs the function while no other test program runs one. */
    template <class Function>
    void exclusively(Function function)
    {
        lock();
        function();
        unlock();
    }
    [[nodiscard]] bool hasDatabase(const QString& name);
    /** From now on the program finds this shell script where it looks for PostgreSQL's own; takes the folder's others
     * too. */
    static void replaceTool(const QDir& folder, const QString& name, const QByteArray& script);
    /** Runs private-postgres with a command that writes "HOST" and addresses, and returns these. */
    [[nodiscard]] static QStringList start(QProcess& script, const QStringList& arguments);

private:
    TestCluster();
    void lock();
    void unlock();

    QString m_host;
    int m_port = 5432;
    QString m_user = "postgres";
    QProcess m_own;
};
