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

/** The data of a kitchen's slip: one order for one kitchen at one moment. Owns no records. */
struct KitchenSlipData
{
    const EntityConfigKitchenPrinter* kitchen = nullptr;
    const EntityOrder* order = nullptr;
    /** Slips of the two kinds differ in one line. */
    OrderKind kind = DineOrder;
    QDateTime now;
};

/** Returns std::nullopt if the kitchen gets no slip. */
using KitchenSlipComposer = std::function<std::optional<QString>(const KitchenSlipData&)>;

[[nodiscard]] bool cooksAny(const EntityConfigKitchenPrinter& kitchen, const EntityOrder::Lines& lines);
/** What this kitchen has to cook; std::nullopt if no line of the order is for it. */
[[nodiscard]] std::optional<QString> composeMenuOrder(const KitchenSlipData& slip);
[[nodiscard]] QString composeMenuOrderCanceled(const KitchenSlipData& slip);
/** What this kitchen no longer has to cook of an order that still exists. */
[[nodiscard]] std::optional<QString> composeTakenBack(const KitchenSlipData& slip);
/** Says that the guests have moved to another table; std::nullopt for a kitchen that cooks nothing for them. */
[[nodiscard]] std::optional<QString> composeMove(const KitchenSlipData& slip, const QString& formerTable);
/** The summary of a table's order for the cashier. */
[[nodiscard]] QString composeOrderRecap(const EntityMakanDitempat& order, const EntityDataPerusahaan& company,
                                        const EntityConfigCashierPrinter& printer);
