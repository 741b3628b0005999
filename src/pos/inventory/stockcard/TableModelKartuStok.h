#pragma once

#include "app/widgets/AppEntityModel.h"

/** The rows of an item's stock card. */
class TableModelKartuStok final : public AppEntityModel
{
    Q_OBJECT

public:
    TableModelKartuStok(const QList<KorEntity*>& rows, QObject* parent);

    /** What the card calls a kind of movement. */
    [[nodiscard]] static QString typeText(int transType);
};
