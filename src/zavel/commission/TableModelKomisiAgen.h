#pragma once

#include "app/widgets/AppEntityModel.h"

/** The list of commissions paid to agents. */
class TableModelKomisiAgen final : public AppEntityModel
{
    Q_OBJECT

public:
    TableModelKomisiAgen(const QList<KorEntity*>& payments, QObject* parent);
};
