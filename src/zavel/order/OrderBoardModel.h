#pragma once

#include "app/widgets/AppEntityModel.h"

#include <QHash>
#include <QIcon>

/** Base of the models of open orders: the status with its coloured mark, and the names of the dishes. */
class OrderBoardModel : public AppEntityModel
{
    Q_OBJECT

public:
    using AppEntityModel::AppEntityModel;

    [[nodiscard]] QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;

protected:
    /** Adds the column "Status"; the function returns the text for a status. */
    void addStatus(QString (*word)(int));
    /** Adds the column "Menu" with the names of the ordered items. */
    void addMenu();

private:
    [[nodiscard]] QIcon statusMark(int status) const;

    int m_statusColumn = -1;
    int m_menuColumn = -1;
    mutable QHash<int, QIcon> m_marks;
};
