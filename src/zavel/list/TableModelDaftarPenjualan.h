#pragma once

#include "app/widgets/AppEntityModel.h"

#include <QIcon>

/** The rows of the list of all sales. */
class TableModelDaftarPenjualan final : public AppEntityModel
{
    Q_OBJECT

public:
    enum Column { No, Date, Type, User, MemberCode, Guest, Waitress, Total, Cash, Credit, NetDue, Status };

    TableModelDaftarPenjualan(const QList<KorEntity*>& sales, QObject* parent);

    [[nodiscard]] QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;

private:
    QHash<int, QIcon> m_marks;
};
