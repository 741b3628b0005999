#pragma once

#include <QObject>
#include <QStringList>

class QSqlQuery;

/** One change from an older table schema to a newer one. */
class KorMigration : public QObject
{
    Q_OBJECT

public:
    explicit KorMigration(QObject* parent = nullptr) : QObject(parent) {}

    /** Applies the change; on false the reason is in errorText(). */
    virtual bool up() = 0;
    virtual void down() = 0;
    [[nodiscard]] virtual QString description() const = 0;
    [[nodiscard]] virtual double version() const = 0;

    [[nodiscard]] const QString& errorText() const { return m_errorText; }

    /** A statement that failed, and whether the migration expects this failure. */
    struct Failure
    {
        QString text;
        bool expected;
    };
    /** The failed migration statements of this thread since the last call. */
    [[nodiscard]] static QList<Failure> takeFailures();

protected:
    /**
     * Runs all statements, also after a failure; true if all succeeded. A failure with the SQLSTATE expectedState is
     * reported like any other, but marked as expected.
     */
    bool run(const QStringList& statements, const QString& expectedState = QString());
    bool addForeignKey(const QString& table, const QString& constraintName, const QString& column,
                       const QString& referencedTable, const QString& referencedColumn,
                       const QString& expectedState = QString());
    [[nodiscard]] static QString lastQueryWithValues(const QSqlQuery& query);

private:
    QString m_errorText;
};

/** A migration that is a list of statements, each safe to run again on an updated database. */
class KorStatementMigration : public KorMigration
{
    Q_OBJECT

public:
    KorStatementMigration(double version, const QStringList& statements, const QString& description, QObject* parent)
        : KorMigration(parent), m_version(version), m_statements(statements), m_description(description)
    {}

    bool up() override { return run(m_statements); }
    void down() override {}
    [[nodiscard]] QString description() const override { return m_description; }
    [[nodiscard]] double version() const override { return m_version; }

private:
    double m_version;
    QStringList m_statements;
    QString m_description;
};

/** The same for version 1.1, the first version that changed tables. */
class KorStatementMigration11 : public KorStatementMigration
{
    Q_OBJECT

public:
    KorStatementMigration11(const QStringList& statements, const QString& description, QObject* parent)
        : KorStatementMigration(1.1, statements, description, parent)
    {}
};
