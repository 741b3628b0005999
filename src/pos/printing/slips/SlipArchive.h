#pragma once

#include "pos/printing/slips/KeptSlip.h"

#include <QDate>
#include <QList>
#include <QMutex>
#include <QObject>

#include <atomic>
#include <memory>

class SlipJournal;

/**
 * The slips that this workstation printed, in a folder that all its program windows share. Every call is cheap and may
 * come from any thread. A folder that cannot be written keeps no slip from being printed: it then stays in memory
 * until the program ends, and trouble() is emitted once.
 */
class SlipArchive final : public QObject
{
    Q_OBJECT

public:
    /** What limits the archive: whatever comes first. */
    struct Limits
    {
        int days = 30;
        int slips = 5000;
    };

    /** Made on first use and never destroyed: slips may still be on their way while the program ends. */
    static SlipArchive* instance();

    /** The limits that the workstation's settings.ini names: "slipdays" and "slipcount". */
    [[nodiscard]] static Limits limitsFrom(const QString& settingsPath);

    /**
     * Keeps the slips in this folder from now on, and removes what is older than the limits. Before that, and with an
     * empty path, they are kept in memory.
     */
    void setFolder(const QString& path, Limits limits);
    void setFolder(const QString& path) { setFolder(path, Limits()); }

    /** The slips of these days, both included, the newest first. */
    [[nodiscard]] QList<KeptSlip> slips(const QDate& from, const QDate& to) const;
    /** Without an id where there is no such slip. */
    [[nodiscard]] KeptSlip slip(const QString& id) const;
    /** The very bytes that went to the printer; empty where they cannot be read. */
    [[nodiscard]] QByteArray bytes(const QString& id) const;
    /** How many copies of this slip were made so far. */
    [[nodiscard]] int copies(const QString& id) const;

    // For whoever hands slips over.

    struct Entry
    {
        KeptSlip slip;
        QByteArray bytes;
    };
    /** Writes slips down before they are handed over, and gives each its id. They belong to this program. */
    void add(QList<Entry>& entries);
    /** Marks that handing over begins; the reference tells the spooler which job it was. False: not on disk. */
    bool begin(const QString& id, const QString& reference);
    void settle(const QString& id, KeptSlip::State state, const QString& reason);
    /** Removes what is older than the limits. */
    void prune();

    /** A slip that a program left on its way when it ended. */
    struct Orphan
    {
        KeptSlip slip;
        QByteArray bytes;
        /** Handing over had begun: the print server has to be asked. */
        bool begun = false;
        QString reference;
    };
    /** The slips of programs that are gone, which belong to this one from now on; the oldest first. */
    [[nodiscard]] QList<Orphan> adopt();

signals:
    void changed();
    /** Slips cannot be kept, with the reason; once until it works again. */
    void trouble(const QString& reason);

private:
    SlipArchive();
    ~SlipArchive() override;

    void tellChange();
    /** Tells once when it stops working; the journal is guarded by the caller. */
    void note(bool works);

    mutable QMutex m_mutex;
    std::unique_ptr<SlipJournal> m_journal;
    std::atomic_bool m_changeIsDue{false};
    bool m_isInTrouble = false;
};
