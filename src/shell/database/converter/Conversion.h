#pragma once

#include "app/context/EntityPool.h"
#include "app/persistence/AppMasterService.h"
#include "pos/masterdata/account/EntityBank.h"
#include "pos/masterdata/item/EntityItem.h"
#include "pos/masterdata/supplier/EntitySupplier.h"
#include "shell/database/converter/ConversionCount.h"
#include "shell/database/converter/ConversionServices.h"
#include "shell/database/converter/LegacySource.h"

#include <QHash>

#include <functional>

/** Finds records by code, ignoring case, and caches them. */
template <class Entity>
class CodeBook
{
public:
    explicit CodeBook(AppMasterService<Entity>* service) : m_service(service) {}

    /** Null if there is none. A code that is too long for its column is cut first. */
    [[nodiscard]] Entity* find(const QString& code);

private:
    AppMasterService<Entity>* m_service;
    EntityPool m_pool;
    QHash<QString, Entity*> m_known;
};

/** The state of one conversion: services, source and counts. Used only on the worker's thread. */
class Conversion
{
    Q_DECLARE_TR_FUNCTIONS(Conversion)

public:
    Conversion(const ConversionServices& services, LegacySource& source, bool resumed);

    [[nodiscard]] const ConversionServices& services() const { return m_services; }
    [[nodiscard]] LegacySource& source() { return m_source; }
    /** A former run was interrupted; the stock and due entries of its last document may be missing. */
    [[nodiscard]] bool isResumed() const { return m_resumed; }
    static void log(const QString& line);

    CodeBook<EntityBank> accounts;
    CodeBook<EntityJenisItem> itemTypes;
    CodeBook<EntitySatuan> units;
    CodeBook<EntitySupplier> suppliers;
    CodeBook<EntityItem> items;

    void beginTable(const QString& table, const QString& linesTable);
    void beginRow();
    [[nodiscard]] ConversionCount& rows() { return m_counts[m_rows]; }
    [[nodiscard]] ConversionCount& lines() { return m_counts[m_rows + 1]; }
    [[nodiscard]] const QList<ConversionCount>& counts() const { return m_counts; }

    // Convert values of the current row. Values that had to be changed are reported with the row once it is written.
    /** The amount rounded half up to whole units of the local currency. */
    [[nodiscard]] Money* money(double amount);
    [[nodiscard]] int whole(double number);
    /** Notes a change of the current row's values for the report. */
    void mend(const QString& what);
    /** The text, cut to the width of its column. */
    [[nodiscard]] static QString fitted(const QString& text, const KorBusinessLogic& service, const QString& property);
    /** Cuts the record's texts to the width of their columns. */
    void fit(KorEntity& entity, const KorBusinessLogic& service);
    /** Writes and counts the record; if the database refuses it, it is skipped with the database's error. */
    bool write(KorBusinessLogic& service, KorEntity& entity, const QString& key, const std::function<bool()>& write);
    bool save(KorBusinessLogic& service, KorEntity& entity, const QString& key)
    {
        return write(service, entity, key, [&] { return service.insert(&entity); });
    }
    /** Checks for errors that no write has taken, such as those of a look-up. */
    void endRow() { takeErrors(); }
    void skip(const QString& key, const QString& reason) { rows().skip(key, reason); }

    /** The error after which nothing can be written any more; empty while the connection works. */
    [[nodiscard]] const QString& lost() const { return m_lost; }

private:
    QString takeErrors();
    void settle(const QString& key);

    ConversionServices m_services;
    LegacySource& m_source;
    bool m_resumed;
    QList<ConversionCount> m_counts;
    int m_rows = 0;
    QStringList m_mended;
    bool m_tooLarge = false;
    QString m_lost;
};

template <class Entity>
Entity* CodeBook<Entity>::find(const QString& code)
{
    const QString key = Conversion::fitted(code, *m_service, "Kode").toLower();
    if (key.isEmpty() || m_known.contains(key))
        return m_known.value(key);
    const EntityPoolScope scope(m_pool);
    Entity* found = m_service->findByCode(key);
    if (found)
        m_known.insert(key, found);
    return found;
}
