#pragma once

#include "zavel/order/OrderKind.h"

#include <QDateTime>
#include <QString>

#include <optional>

class EntityConfigCashierPrinter;
class EntityConfigKitchenPrinter;
class EntityDataPerusahaan;
class EntityMakanDitempat;
class EntityOrder;

/** What stands on a kitchen's slip: the order seen from one kitchen at one moment. All records are borrowed. */
struct KitchenSlipData
{
    const EntityConfigKitchenPrinter* kitchen = nullptr;
    const EntityOrder* order = nullptr;
    /** The slips of the two kinds differ in one line. */
    OrderKind kind = DineOrder;
    QDateTime now;
};

/** What this kitchen has to cook; nothing where no line of the order is for it. */
[[nodiscard]] std::optional<QString> composeMenuOrder(const KitchenSlipData& slip);
[[nodiscard]] QString composeMenuOrderCanceled(const KitchenSlipData& slip);
/** The recap of a table's order for the cashier. */
[[nodiscard]] QString composeOrderRecap(const EntityMakanDitempat& order, const EntityDataPerusahaan& company,
                                        const EntityConfigCashierPrinter& printer);
