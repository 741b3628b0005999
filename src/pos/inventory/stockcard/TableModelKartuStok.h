#pragma once

#include "app/widgets/AppEntityModel.h"

/** The rows of an item's stock card. */
class TableModelKartuStok final : public AppEntityModel
{
    Q_OBJECT

public:
    TableModelKartuStok(const QList<KorEntity*>& rows, QObject* parent);

    /** The name of a kind of movement on the card. */
    [[nodiscard]] static QString typeText(int transType);
};
