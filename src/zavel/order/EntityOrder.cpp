#include "zavel/order/EntityOrder.h"

#include <QSet>

#include <limits>

EntityOrder::EntityOrder(QObject* parent) : KorEntity(parent) {}

EntityOrder::~EntityOrder()
{
    qDeleteAll(m_snapshot);
    qDeleteAll(m_takenBackDetails);
}

qint64 EntityOrder::totalOf(const Lines& lines)
{
    qint64 sum = 0;
    for (const EntityOrderDetail* line : lines)
        sum += line->getTotal()->rawAmount();
    return sum;
}

bool EntityOrder::totalFits(const Lines& lines) { return totalOf(lines) <= std::numeric_limits<int>::max(); }

void EntityOrder::takeSnapshot()
{
    qDeleteAll(m_snapshot);
    m_snapshot.clear();
    for (const EntityOrderDetail* line : qAsConst(m_details))
        m_snapshot.append(line->snapshot());
}

void EntityOrder::compareWithSnapshot()
{
    clearChanges();
    for (EntityOrderDetail* line : qAsConst(m_details)) {
        bool known = false;
        bool changed = false;
        for (const EntityOrderDetail* before : qAsConst(m_snapshot)) {
            if (before->itemId() != line->itemId())
                continue;
            known = true;
            changed =
                changed || before->getQty() != line->getQty() || before->getDescription() != line->getDescription();
            line->setFormer({before->getQty(), line->getQty(), before->getDescription()});
        }
        if (!known)
            noteNew(line);
        else if (changed)
            noteUpdated(line);
    }
    noteTakenBack();
}

void EntityOrder::noteTakenBack()
{
    const auto quantityOf = [](const Lines& lines, int item) {
        int sum = 0;
        for (const EntityOrderDetail* line : lines)
            sum += line->itemId() == item ? line->getQty() : 0;
        return sum;
    };
    QSet<int> seen;
    for (const EntityOrderDetail* before : qAsConst(m_snapshot)) {
        const int item = before->itemId();
        const int less = quantityOf(m_snapshot, item) - quantityOf(m_details, item);
        if (less <= 0 || seen.contains(item))
            continue;
        seen.insert(item);
        EntityOrderDetail* line = before->snapshot();
        line->setQty(less);
        m_takenBackDetails.append(line);
    }
}

void EntityOrder::mergeLines(const Lines& entered)
{
    clearChanges();
    for (EntityOrderDetail* line : entered) {
        bool known = false;
        for (EntityOrderDetail* stored : qAsConst(m_details)) {
            if (stored->itemId() != line->itemId())
                continue;
            known = true;
            line->setFormer({stored->getQty(), stored->getQty() + line->getQty(), stored->getDescription()});
            stored->setQty(stored->getQty() + line->getQty());
            stored->setStatus(EntityOrderDetail::UPDATED);
            noteUpdated(line);
        }
        if (!known)
            noteNew(line);
    }
    m_details += m_newDetails;
}

void EntityOrder::collectMarkedLines()
{
    clearChanges();
    for (EntityOrderDetail* line : qAsConst(m_details)) {
        if (line->getStatus() == EntityOrderDetail::UPDATED)
            noteUpdated(line);
        else if (line->getStatus() == EntityOrderDetail::NEW)
            noteNew(line);
    }
}

void EntityOrder::clearChanges()
{
    m_newDetails.clear();
    m_updatedDetails.clear();
    m_changedDetails.clear();
    qDeleteAll(m_takenBackDetails);
    m_takenBackDetails.clear();
}

void EntityOrder::noteNew(EntityOrderDetail* line)
{
    line->setStatus(EntityOrderDetail::NEW);
    m_newDetails.append(line);
    m_changedDetails.append(line);
}

void EntityOrder::noteUpdated(EntityOrderDetail* line)
{
    line->setStatus(EntityOrderDetail::UPDATED);
    m_updatedDetails.append(line);
    m_changedDetails.append(line);
}
