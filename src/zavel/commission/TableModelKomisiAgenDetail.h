#pragma once

#include "app/widgets/AppEntityModel.h"

/** The invoices that a commission payment pays for. */
class TableModelKomisiAgenDetail final : public AppEntityModel
{
    Q_OBJECT

public:
    TableModelKomisiAgenDetail(const QList<KorEntity*>& lines, QObject* parent);
};
