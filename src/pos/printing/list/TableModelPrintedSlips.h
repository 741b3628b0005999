#pragma once

#include "kor/widgets/KorEntityModel.h"

#include <QIcon>
#include <QMap>

struct KeptSlip;

/** The rows of the list of kept slips. The date is not shown if all are of one day. */
class TableModelPrintedSlips final : public KorEntityModel
{
    Q_OBJECT

public:
    enum Column { Time, Kind, Number, Place, Printer, User, State };

    TableModelPrintedSlips(const QList<KorEntity*>& slips, bool ofOneDay, QObject* parent);

    [[nodiscard]] QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    /** The row's slip; null if the row does not exist. */
    [[nodiscard]] const KeptSlip* slipAt(int row) const;

private:
    [[nodiscard]] QVariant tip(const KeptSlip& slip, const QModelIndex& index) const;

    QMap<int, QIcon> m_marks;
};
