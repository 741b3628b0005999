#pragma once

#include "zavel/order/DataMapperOrder.h"
#include "zavel/takeaway/EntityBawaPulang.h"

/** The orders to take away, in "bawa_pulang". */
class DataMapperBawaPulang final : public DataMapperOrder
{
    Q_OBJECT

public:
    DataMapperBawaPulang(QObject* parent, DataMapperMember* members, ItemPartners partners);

    KorEntity* createEntity() override;
    [[nodiscard]] QStringList indexStatements() const override;

    /** The orders in the status, or with 0 all that are not done, oldest first. */
    [[nodiscard]] QList<EntityBawaPulang*> getBawaPulangList(int status);

protected:
    [[nodiscard]] const Messages& messages() const override;
    [[nodiscard]] QString statusFailure() const override;
};
