#pragma once

#include "app/widgets/AppEntityModel.h"

/** The rows of the list of users. */
class TableModelUser final : public AppEntityModel
{
    Q_OBJECT

public:
    TableModelUser(const QList<KorEntity*>& users, QObject* parent);
};
