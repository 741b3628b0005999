#include "kor/business/KorBusinessLogic.h"

#include "kor/persistence/KorDataMapper.h"

KorBusinessLogic::KorBusinessLogic(const QString& name, KorDataMapper* mapper, QObject* parent)
    : QObject(parent), m_mapper(mapper), m_name(name)
{}

void KorBusinessLogic::addError(const QString& operation, const QString& message)
{
    m_errors[operation].append(message);
    emit error('[' + operation + "] " + message);
}

void KorBusinessLogic::clearErrors()
{
    m_errors.clear();
    if (m_mapper)
        m_mapper->clearError();
}

QString KorBusinessLogic::takeErrors()
{
    QString text;
    for (const QStringList& messages : qAsConst(m_errors)) {
        for (const QString& message : messages)
            text += message + "\r\n";
    }
    clearErrors();
    return text;
}

bool KorBusinessLogic::written(bool done, KorDataMapper* mapper, const QString& operation)
{
    if (!done)
        addError(operation, mapper->takeError());
    return done;
}

bool KorBusinessLogic::clearTables(const QList<KorDataMapper*>& tables)
{
    bool cleared = true;
    // With CASCADE: PostgreSQL refuses to truncate a table that a foreign key references, even if both are empty.
    for (KorDataMapper* table : tables)
        cleared = written(table->truncate(true), table, "clearTransactions") && cleared;
    return cleared;
}

void KorBusinessLogic::takeMapperError(KorDataMapper* mapper, const QString& operation)
{
    if (mapper->hasError())
        addError(operation, mapper->takeError());
}

bool KorBusinessLogic::insert(KorEntity* entity) { return written(m_mapper->insert(entity), m_mapper, "insert"); }

KorEntity* KorBusinessLogic::find(int id) { return read(m_mapper->findById(id), m_mapper, "find"); }

KorEntity* KorBusinessLogic::find(const QString& column, const QString& value)
{
    return read(m_mapper->findByColumn(column, value), m_mapper, "find");
}

bool KorBusinessLogic::update(KorEntity* entity) { return written(m_mapper->update(entity), m_mapper, "update"); }

bool KorBusinessLogic::remove(KorEntity* entity) { return written(m_mapper->remove(entity), m_mapper, "delete"); }
