#pragma once

#include "app/widgets/AppEntityModel.h"

/** The lines of the order selected in the kitchen, with the kitchen's status texts. */
class TableModelQueueMenu final : public AppEntityModel
{
    Q_OBJECT

public:
    enum Column { Code, Name, Qty, Unit, Status, Description, Created, Updated };

    /** The type is an OrderKind: the kind of the order that the lines belong to. */
    TableModelQueueMenu(int type, const QList<KorEntity*>& lines, QObject* parent);

    [[nodiscard]] int type() const { return m_type; }

private:
    int m_type;
};
