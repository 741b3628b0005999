#pragma once

#include "zavel/order/EntityOrder.h"
#include "zavel/order/OrderKind.h"

#include <QDateTime>
#include <QString>

#include <functional>
#include <optional>

class EntityConfigCashierPrinter;
class EntityConfigKitchenPrinter;
class EntityDataPerusahaan;
class EntityMakanDitempat;

/** What stands on a kitchen's slip: the order seen from one kitchen at one moment. All records are borrowed. */
struct KitchenSlipData
{
    const EntityConfigKitchenPrinter* kitchen = nullptr;
    const EntityOrder* order = nullptr;
    /** The slips of the two kinds differ in one line. */
    OrderKind kind = DineOrder;
    QDateTime now;
};

/** Nothing where the kitchen gets no slip. */
using KitchenSlipComposer = std::function<std::optional<QString>(const KitchenSlipData&)>;

[[nodiscard]] bool cooksAny(const EntityConfigKitchenPrinter& kitchen, const EntityOrder::Lines& lines);
/** What this kitchen has to cook; nothing where no line of the order is for it. */
[[nodiscard]] std::optional<QString> composeMenuOrder(const KitchenSlipData& slip);
[[nodiscard]] QString composeMenuOrderCanceled(const KitchenSlipData& slip);
/** What this kitchen need not cook any more of an order that stands. */
[[nodiscard]] std::optional<QString> composeTakenBack(const KitchenSlipData& slip);
/** That the guests sit at another table now; nothing for a kitchen that cooks nothing for them. */
[[nodiscard]] std::optional<QString> composeMove(const KitchenSlipData& slip, const QString& formerTable);
/** The recap of a table's order for the cashier. */
[[nodiscard]] QString composeOrderRecap(const EntityMakanDitempat& order, const EntityDataPerusahaan& company,
                                        const EntityConfigCashierPrinter& printer);
