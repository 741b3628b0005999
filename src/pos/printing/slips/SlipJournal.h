#pragma once

#include "pos/printing/slips/SlipArchive.h"

#include <QDir>
#include <QHash>
#include <QMap>
#include <QVector>

/**
 * The archive's folder. Each day has a file that only grows: one line a slip, what is known of it as JSON and behind a
 * tab its bytes in Base64, and one line for each later state. Several programs append to one file, a line in one write
 * each, and begin with a line end, so that a line that was torn by a full disk spoils no other. A line that is not
 * whole is passed over.
 *
 * A program holds the lock of a file of its own as long as it lives; the slips of a program whose lock is free are
 * orphans. Not thread-safe: the archive guards it.
 */
class SlipJournal
{
public:
    SlipJournal() = default;
    ~SlipJournal();
    Q_DISABLE_COPY_MOVE(SlipJournal)

    /** False, with the reason in error(), where the folder cannot be written; slips then stay in memory. */
    bool open(const QString& folder, SlipArchive::Limits limits);
    [[nodiscard]] const QString& error() const { return m_error; }

    /** Reads what this and other programs have appended meanwhile. */
    void refresh();
    [[nodiscard]] QList<KeptSlip> slips(const QDate& from, const QDate& to) const;
    [[nodiscard]] KeptSlip slip(const QString& id) const;
    [[nodiscard]] QByteArray bytes(const QString& id) const;
    [[nodiscard]] int copies(const QString& id) const;

    /** False where some are in memory only. */
    bool add(QList<SlipArchive::Entry>& entries);
    bool begin(const QString& id, const QString& reference);
    /** False where it is known in memory only. */
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
        /** Where the bytes stand in the day's file; they are in memory where the length is negative. */
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
