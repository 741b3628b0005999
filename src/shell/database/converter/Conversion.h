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

/** Records by their codes, whatever the letters' case; each is asked for once. */
template <class Entity>
class CodeBook
{
public:
    explicit CodeBook(AppMasterService<Entity>* service) : m_service(service) {}

    /** Null where there is none. A code that is too long for its column is known by its beginning. */
    [[nodiscard]] Entity* find(const QString& code);

private:
    AppMasterService<Entity>* m_service;
    EntityPool m_pool;
    QHash<QString, Entity*> m_known;
};

/** One conversion under way: what its steps read from, write to and count in. Lives on the worker's thread. */
class Conversion
{
    Q_DECLARE_TR_FUNCTIONS(Conversion)

public:
    Conversion(const ConversionServices& services, LegacySource& source, bool resumed);

    [[nodiscard]] const ConversionServices& services() const { return m_services; }
    [[nodiscard]] LegacySource& source() { return m_source; }
    /** A former run was broken off: its last document may lack what follows from a save. */
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

    // What the row in hand comes to. Whatever had to give way is told with the row, once it is written.
    /** Whole units of the house's currency, rounded half up. */
    [[nodiscard]] Money* money(double amount);
    [[nodiscard]] int whole(double number);
    void mend(const QString& what);
    /** The text as its column can hold it. */
    [[nodiscard]] static QString fitted(const QString& text, const KorBusinessLogic& service, const QString& property);
    /** Cuts the record's texts to the widths of their columns. */
    void fit(KorEntity& entity, const KorBusinessLogic& service);
    /** Writes and counts it; a record that the database refuses is skipped with the database's words. */
    bool write(KorBusinessLogic& service, KorEntity& entity, const QString& key, const std::function<bool()>& write);
    bool save(KorBusinessLogic& service, KorEntity& entity, const QString& key)
    {
        return write(service, entity, key, [&] { return service.insert(&entity); });
    }
    /** Notices failures that nobody has asked for, as those of a look-up. */
    void endRow() { takeErrors(); }
    void skip(const QString& key, const QString& reason) { rows().skip(key, reason); }

    /** Why nothing can be written any more; empty while something can. */
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
