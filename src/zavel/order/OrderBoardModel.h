#pragma once

#include "app/widgets/AppEntityModel.h"

#include <QHash>
#include <QIcon>

/** What the lists of open orders share: the status with its coloured mark, and what was ordered. */
class OrderBoardModel : public AppEntityModel
{
    Q_OBJECT

public:
    using AppEntityModel::AppEntityModel;

    [[nodiscard]] QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;

protected:
    /** The column "Status"; the function gives the word for a status. */
    void addStatus(QString (*word)(int));
    /** The column "Menu", the names of what was ordered. */
    void addMenu();

private:
    [[nodiscard]] QIcon statusMark(int status) const;

    int m_statusColumn = -1;
    int m_menuColumn = -1;
    mutable QHash<int, QIcon> m_marks;
};
