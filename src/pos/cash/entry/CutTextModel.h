#pragma once

#include "app/widgets/AppEntityModel.h"

/** A grid model whose tool tips show the full text of a cell that may be cut off in a narrow column. */
class CutTextModel : public AppEntityModel
{
    Q_OBJECT

public:
    using AppEntityModel::AppEntityModel;

    [[nodiscard]] QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override
    {
        const bool isText = columnType(index.column()) == QMetaType::QString;
        return AppEntityModel::data(index, role == Qt::ToolTipRole && isText ? int(Qt::DisplayRole) : role);
    }
};
