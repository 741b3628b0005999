#pragma once

#include <QMap>
#include <QObject>
#include <QPair>
#include <QStringList>

class KorDataMapper;
class KorEntity;

/** One operation of a service that needs a right: its key, as the screens name it, and its caption. */
using KorPermission = QPair<int, QString>;

/**
 * A service of one area. Screens call it for every read and write; it calls its mapper and keeps what went wrong
 * under the operation's name until a screen takes it. It never touches a widget and does not test rights itself.
 */
class KorBusinessLogic : public QObject
{
    Q_OBJECT

public:
    KorBusinessLogic(const QString& name, KorDataMapper* mapper, QObject* parent = nullptr);

    [[nodiscard]] virtual QList<KorPermission> getPermissions() const = 0;
    /** Empties the service's transaction tables; services without any have nothing to do. */
    virtual bool clearTransactions() { return true; }

    [[nodiscard]] KorDataMapper* mapper() const { return m_mapper; }
    void setMapper(KorDataMapper* mapper) { m_mapper = mapper; }
    [[nodiscard]] const QString& name() const { return m_name; }
    void setName(const QString& name) { m_name = name; }

    [[nodiscard]] bool hasError() const { return !m_errors.isEmpty(); }
    void addError(const QString& operation, const QString& message);
    void clearErrors();
    /** All messages, each with its line end, in the order of the operations' names; the service forgets them. */
    QString takeErrors();
    [[nodiscard]] QMap<QString, QStringList> errors() const { return m_errors; }

    // The generic operations forward to the mapper and keep its failure under "insert", "find", "update", "delete".
    virtual bool insert(KorEntity* entity);
    virtual KorEntity* find(int id);
    virtual KorEntity* find(const QString& column, const QString& value);
    virtual bool update(KorEntity* entity);
    virtual bool remove(KorEntity* entity);

signals:
    void error(const QString& err);

protected:
    /** Empties the tables in this order, lines before their documents; a failure stands under "clearTransactions". */
    bool clearTables(const QList<KorDataMapper*>& tables);
    /** Passes a mapper's write on; a failure is kept under the operation's name. */
    bool written(bool done, KorDataMapper* mapper, const QString& operation);
    /** Passes a mapper's read on; an error that the mapper holds is kept under the operation's name. */
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
