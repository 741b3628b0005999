#pragma once

#include <QObject>
#include <QStringList>

class QSqlQuery;

/** One change that brings a table from an older schema to a newer one. Applied at most in one direction. */
class KorMigration : public QObject
{
    Q_OBJECT

public:
    explicit KorMigration(QObject* parent = nullptr) : QObject(parent) {}

    /** Applies the change; false leaves the reason in errorText(). */
    virtual bool up() = 0;
    virtual void down() = 0;
    [[nodiscard]] virtual QString description() const = 0;
    [[nodiscard]] virtual double version() const = 0;

    [[nodiscard]] const QString& errorText() const { return m_errorText; }

    /** Why statements of migrations failed on this thread since the last call, each with its text. */
    [[nodiscard]] static QStringList takeFailures();

protected:
    /** Runs each text, going on after a failure; true when all succeeded. */
    bool run(const QStringList& statements);
    bool addForeignKey(const QString& table, const QString& constraintName, const QString& column,
                       const QString& referencedTable, const QString& referencedColumn);
    [[nodiscard]] static QString lastQueryWithValues(const QSqlQuery& query);

private:
    QString m_errorText;
};

/** A migration that is a list of statements and belongs to schema version 1.1, as all of them so far. */
class KorStatementMigration11 : public KorMigration
{
    Q_OBJECT

public:
    KorStatementMigration11(const QStringList& statements, const QString& description, QObject* parent)
        : KorMigration(parent), m_statements(statements), m_description(description)
    {}

    bool up() override { return run(m_statements); }
    void down() override {}
    [[nodiscard]] QString description() const override { return m_description; }
    [[nodiscard]] double version() const override { return 1.1; }

private:
    QStringList m_statements;
    QString m_description;
};
