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
 * The slips that this workstation printed, in a folder that all its program windows share. All calls are fast and
 * thread-safe. If the folder cannot be written, slips are still printed: they stay in memory until the program ends,
 * and trouble() is emitted once.
 */
class SlipArchive final : public QObject
{
    Q_OBJECT

public:
    /** The limits of the archive; the first one that is reached counts. */
    struct Limits
    {
        int days = 30;
        int slips = 5000;
    };

    /** Created on first use and never destroyed: slips may still be printing while the program ends. */
    static SlipArchive* instance();

    /** The limits in the workstation's settings.ini: "slipdays" and "slipcount". */
    [[nodiscard]] static Limits limitsFrom(const QString& settingsPath);

    /**
     * Uses this folder from now on and deletes what exceeds the limits. Before that, or with an empty path, slips are
     * kept in memory.
     */
    void setFolder(const QString& path, Limits limits);
    void setFolder(const QString& path) { setFolder(path, Limits()); }

    /** The slips of these days (both inclusive), newest first. */
    [[nodiscard]] QList<KeptSlip> slips(const QDate& from, const QDate& to) const;
    /** The id is empty if there is no such slip. */
    [[nodiscard]] KeptSlip slip(const QString& id) const;
    /** The bytes that were sent to the printer; empty if they cannot be read. */
    [[nodiscard]] QByteArray bytes(const QString& id) const;
    /** How many copies of this slip were made so far. */
    [[nodiscard]] int copies(const QString& id) const;

    // For the code that sends slips.

    struct Entry
    {
        KeptSlip slip;
        QByteArray bytes;
    };
    /** Saves slips before they are sent and sets their ids. They belong to this program. */
    void add(QList<Entry>& entries);
    /** Records that sending starts; the reference identifies the spooler's job. False if it is not on disk. */
    bool begin(const QString& id, const QString& reference);
    void settle(const QString& id, KeptSlip::State state, const QString& reason);
    /** Deletes what exceeds the limits. */
    void prune();

    /** A slip that an ended program left waiting. */
    struct Orphan
    {
        KeptSlip slip;
        QByteArray bytes;
        /** Sending had started: the print server must be asked. */
        bool begun = false;
        QString reference;
    };
    /** Takes over the slips of ended programs; oldest first. */
    [[nodiscard]] QList<Orphan> adopt();

signals:
    void changed();
    /** Slips cannot be saved, with the reason; emitted once until it works again. */
    void trouble(const QString& reason);

private:
    SlipArchive();
    ~SlipArchive() override;

    void tellChange();
    /** Emits trouble() once when saving stops working. The caller holds the mutex. */
    void note(bool works);

    mutable QMutex m_mutex;
    std::unique_ptr<SlipJournal> m_journal;
    std::atomic_bool m_changeIsDue{false};
    bool m_isInTrouble = false;
};
