#pragma once

#include "sales/order/DataMapperOrder.h"

/** The orders to take away, in "bawa_pulang". */
class DataMapperBawaPulang final : public DataMapperOrder
{
    Q_OBJECT

public:
    DataMapperBawaPulang(QObject* parent, DataMapperMember* members, ItemPartners partners);

    KorEntity* createEntity() override;
    [[nodiscard]] QStringList indexStatements() const override;

protected:
    [[nodiscard]] const Messages& messages() const override;
    [[nodiscard]] QString statusFailure() const override;
};
