#pragma once

#include "pos/printing/slips/SlipArchive.h"

#include <QDir>
#include <QHash>
#include <QMap>
#include <QVector>

/**
 * The files of the archive. Each day has a file that is only appended to: one line per slip (its JSON, a tab, its bytes
 * in Base64) and one line per later state. Several programs append to the same file, each line with one write. Lines
 * start with a line break, so that a line cut short by a full disk does not damage the next one. Incomplete lines are
 * skipped.
 *
 * A program keeps the lock of its own lock file while it runs; slips whose program's lock is free are orphans. Not
 * thread-safe: the archive locks its mutex.
 */
class SlipJournal
{
public:
    SlipJournal() = default;
    ~SlipJournal();
    Q_DISABLE_COPY_MOVE(SlipJournal)

    /** False, with the reason in error(), if the folder cannot be written; slips then stay in memory. */
    bool open(const QString& folder, SlipArchive::Limits limits);
    [[nodiscard]] const QString& error() const { return m_error; }

    /** Reads what all programs have appended since the last call. */
    void refresh();
    [[nodiscard]] QList<KeptSlip> slips(const QDate& from, const QDate& to) const;
    [[nodiscard]] KeptSlip slip(const QString& id) const;
    [[nodiscard]] QByteArray bytes(const QString& id) const;
    [[nodiscard]] int copies(const QString& id) const;

    /** False if some are only in memory. */
    bool add(QList<SlipArchive::Entry>& entries);
    bool begin(const QString& id, const QString& reference);
    /** False if the state is only in memory. */
    bool settle(const QString& id, KeptSlip::State state, const QString& reason);
    void prune();
    [[nodiscard]] QList<SlipArchive::Orphan> adopt();

private:
    struct Record
    {
        KeptSlip slip;
        QString owner;
        QString reference;
        bool begun = false;
        /** The position of the bytes in the day's file; a negative length means that they are in memory. */
        qint64 offset = 0;
        int length = -1;
        QByteArray bytes;
    };

    enum Sync { NoSync, SyncToDisk };

    [[nodiscard]] QString fileOf(const QString& id) const;
    bool append(const QString& id, const QByteArray& lines, Sync sync);
    bool appendState(const QString& id, const class QJsonObject& change, Sync sync);
    void readFile(const QString& name);
    void readLine(const char* line, int length, qint64 offset);
    void put(const Record& record);
    void keepInMemory(const SlipArchive::Entry& entry);
    bool holdOwnLock();
    void releaseOwnLock();
    [[nodiscard]] bool isGone(const QString& owner) const;
    bool fail(const QString& what);

    QDir m_folder;
    bool m_isOpen = false;
    SlipArchive::Limits m_limits;
    QString m_owner;
    int m_ownLock = -1;
    QString m_error;
    QMap<QString, qint64> m_readUpTo; // by file, in the order of the days
    QVector<Record> m_records;
    QHash<QString, int> m_byId;
    QHash<QString, int> m_copies;
    QStringList m_inMemory;
};
