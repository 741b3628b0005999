#pragma once

#include "app/widgets/AppEntityModel.h"

/** The lines of the order that the kitchen has in hand, with what it has reported about them. */
class TableModelQueueMenu final : public AppEntityModel
{
    Q_OBJECT

public:
    enum Column { Code, Name, Qty, Unit, Status, Description, Created, Updated };

    /** The type is an OrderKind: what the lines are lines of. */
    TableModelQueueMenu(int type, const QList<KorEntity*>& lines, QObject* parent);

    [[nodiscard]] int type() const { return m_type; }

private:
    int m_type;
};
