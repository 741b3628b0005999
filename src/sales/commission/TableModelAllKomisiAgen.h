#pragma once

#include "app/widgets/AppEntityModel.h"

/** The invoices that agents brought, with what they earn by them. */
class TableModelAllKomisiAgen final : public AppEntityModel
{
    Q_OBJECT

public:
    TableModelAllKomisiAgen(const QList<KorEntity*>& sales, QObject* parent);
};
