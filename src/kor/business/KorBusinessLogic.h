#pragma once

#include <QMap>
#include <QObject>
#include <QPair>
#include <QStringList>

class KorDataMapper;
class KorEntity;

/** One operation of a service that needs a right: its permission key, and its caption. */
using KorPermission = QPair<int, QString>;

/**
 * Base of all services; each covers one area. Pages and forms call it for every read and write. It calls its mapper and
 * keeps error messages under the operation's name until a page takes them. It uses no widgets and checks no rights.
 */
class KorBusinessLogic : public QObject
{
    Q_OBJECT

public:
    KorBusinessLogic(const QString& name, KorDataMapper* mapper, QObject* parent = nullptr);

    [[nodiscard]] virtual QList<KorPermission> getPermissions() const = 0;
    /** Empties the service's transaction tables; the default does nothing. */
    virtual bool clearTransactions() { return true; }

    [[nodiscard]] KorDataMapper* mapper() const { return m_mapper; }
    void setMapper(KorDataMapper* mapper) { m_mapper = mapper; }
    [[nodiscard]] const QString& name() const { return m_name; }
    void setName(const QString& name) { m_name = name; }

    [[nodiscard]] bool hasError() const { return !m_errors.isEmpty(); }
    void addError(const QString& operation, const QString& message);
    void clearErrors();
    /** All messages, each ending with a line break, sorted by operation name; the service drops them. */
    QString takeErrors();
    [[nodiscard]] QMap<QString, QStringList> errors() const { return m_errors; }

    // The generic operations call the mapper and keep its error under "insert", "find", "update" or "delete".
    virtual bool insert(KorEntity* entity);
    virtual KorEntity* find(int id);
    virtual KorEntity* find(const QString& column, const QString& value);
    virtual bool update(KorEntity* entity);
    virtual bool remove(KorEntity* entity);

signals:
    void error(const QString& err);

protected:
    /** Empties the tables in this order (lines before their documents). Errors are kept under "clearTransactions". */
    bool clearTables(const QList<KorDataMapper*>& tables);
    /** Returns the result of a mapper's write; on failure keeps the error under the operation's name. */
    bool written(bool done, KorDataMapper* mapper, const QString& operation);
    /** Returns the result of a mapper's read; an error in the mapper is kept under the operation's name. */
    template <class Result>
    Result read(Result result, KorDataMapper* mapper, const QString& operation)
    {
        takeMapperError(mapper, operation);
        return result;
    }
    void takeMapperError(KorDataMapper* mapper, const QString& operation);

private:
    KorDataMapper* m_mapper;
    QMap<QString, QStringList> m_errors;
    QString m_name;
};
