#pragma once

#include "app/widgets/AppEntityModel.h"

#include <QHash>
#include <QIcon>

/** The sales over the counter as the page lists them. */
class TableModelFastFood final : public AppEntityModel
{
    Q_OBJECT

public:
    enum Column { InvoiceNo, Guest, Waitress, Total, AmountPaid, Date, Status, Menu };

    TableModelFastFood(const QList<KorEntity*>& sales, QObject* parent);

    [[nodiscard]] QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;

private:
    QHash<int, QIcon> m_marks;
};
