#pragma once

#include "pos/masterdata/member/EntityMember.h"
#include "zavel/order/EntityOrderDetail.h"

/**
 * An order with its lines, on a table or to take away. The lists of lines do not own them: lines read from the
 * database belong to the pool, new ones to the form that created them.
 */
class EntityOrder : public KorEntity
{
    Q_OBJECT
    KOR_PROPERTY(int, Status, EMPTY)
    KOR_REFERENCE(EntityMember, Member)
    /** The guest's name. */
    KOR_PROPERTY(QString, Pemesan, QString())
    KOR_PROPERTY(QDate, Tgl, QDate())

public:
    /** SERVED is displayed but never written by the program; EMPTY marks a free table on the board. */
    enum MAKAN_DITEMPAT_STATUS {
        WAITING_FOR_MENU = 1,
        SERVED = 2,
        EMPTY = 3,
        PAID = 4,
        PARTIALY_PAID = 5,
        DONE = 6,
        UNPAID = 7
    };
    Q_ENUM(MAKAN_DITEMPAT_STATUS)
    using Lines = QList<EntityOrderDetail*>;

    explicit EntityOrder(QObject* parent = nullptr);
    ~EntityOrder() override;

    [[nodiscard]] const Lines& getDetails() const { return m_details; }
    void setDetails(const Lines& details) { m_details = details; }
    [[nodiscard]] const Lines& getRemovedDetails() const { return m_removedDetails; }
    void setRemovedDetails(const Lines& details) { m_removedDetails = details; }
    [[nodiscard]] const Lines& getNewDetails() const { return m_newDetails; }
    [[nodiscard]] const Lines& getUpdatedDetails() const { return m_updatedDetails; }
    /** New and updated lines together, in the order of the lines. */
    [[nodiscard]] const Lines& getChangedDetails() const { return m_changedDetails; }
    /** One line for each item whose quantity was reduced or removed, with the quantity that was taken back. */
    [[nodiscard]] const Lines& getTakenBackDetails() const { return m_takenBackDetails; }

    /** The total of the lines in minor units; it can be larger than one Money can hold. */
    [[nodiscard]] static qint64 totalOf(const Lines& lines);
    [[nodiscard]] static bool totalFits(const Lines& lines);

    /** Copies the lines as they are now, for compareWithSnapshot(). */
    void takeSnapshot();
    /** Marks and lists the lines that are new, changed or taken back since the snapshot, compared by item. */
    void compareWithSnapshot();
    /**
     * Adds newly entered lines to an existing order. For an item that the order already has, only the quantity of the
     * line grows; its total stays unchanged. The lists of changes then hold what the kitchen has not seen yet.
     */
    void mergeLines(const Lines& entered);
    /** Fills the lists of changes from the lines' stored marks, for printing again. */
    void collectMarkedLines();

private:
    void noteTakenBack();
    void noteNew(EntityOrderDetail* line);
    void noteUpdated(EntityOrderDetail* line);
    void clearChanges();

    Lines m_details;
    Lines m_removedDetails;
    Lines m_newDetails;
    Lines m_updatedDetails;
    Lines m_changedDetails;
    // These two lists own their lines, unlike the other lists.
    Lines m_snapshot;
    Lines m_takenBackDetails;
};
