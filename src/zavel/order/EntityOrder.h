#pragma once

#include "pos/masterdata/member/EntityMember.h"
#include "zavel/order/EntityOrderDetail.h"

/**
 * An order with its lines, on a table or to take away. The lists of lines are borrowed: lines that were read belong
 * to the pool, new ones to the form that made them.
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
    /** SERVED is shown where it stands and never written; EMPTY is the board's sign of a free table. */
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
    /** New and updated lines together, in the order of the visit. */
    [[nodiscard]] const Lines& getChangedDetails() const { return m_changedDetails; }
    /** What was removed or lessened, one line for each item with the quantity that is not wanted any more. */
    [[nodiscard]] const Lines& getTakenBackDetails() const { return m_takenBackDetails; }

    /** What the lines cost, in the smallest unit of their currency; wider than what one amount can hold. */
    [[nodiscard]] static qint64 totalOf(const Lines& lines);
    [[nodiscard]] static bool totalFits(const Lines& lines);

    /** Remembers the lines as they are now. */
    void takeSnapshot();
    /** Marks and lists what is new, changed or taken back since the snapshot, item by item. */
    void compareWithSnapshot();
    /**
     * Puts lines that were keyed in for a standing order to its own. An item that it has already grows in quantity, and
     * the total of that line stays as it was. The lists then hold what the kitchen has not seen yet.
     */
    void mergeLines(const Lines& entered);
    /** The same lists from the lines' stored marks, for printing again. */
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
    // Owned, unlike the other lists.
    Lines m_snapshot;
    Lines m_takenBackDetails;
};
