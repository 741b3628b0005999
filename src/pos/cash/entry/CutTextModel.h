#pragma once

#include "app/widgets/AppEntityModel.h"

/** Rows whose words a narrow column may cut off: they are told in full when the mouse rests on them. */
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
