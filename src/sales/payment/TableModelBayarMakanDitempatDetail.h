#pragma once

#include "app/widgets/AppEntityModel.h"

/** The lines of an invoice in the payment form. */
class TableModelBayarMakanDitempatDetail final : public AppEntityModel
{
    Q_OBJECT

public:
    /** While a party pays apart two more columns tell what is split off. */
    TableModelBayarMakanDitempatDetail(const QList<KorEntity*>& lines, bool showSplit, QObject* parent);
};
