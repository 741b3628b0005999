#pragma once

#include "pos/printing/configuration/EntityConfigPrinter.h"

#include <QDateTime>

/**
 * One kitchen: its printer and the item types that it cooks. Only the form uses the printer type; slips are cut as the
 * cashier printer's type defines.
 */
class EntityConfigKitchenPrinter final : public EntityConfigPrinter
{
    Q_OBJECT
    CONFIG_MEMBER(KitchenName, "kitchen_name")
    /** "Yes" if a slip is printed automatically when an order is sent. */
    CONFIG_MEMBER(AutoPrint, "auto_print")
    /** Codes of item types, separated by commas; empty means all. */
    CONFIG_MEMBER(KodeJenisItem, "kode_jenis_item")
    /** "Yes" if the slip of a changed line also prints its old values. */
    CONFIG_MEMBER(SayFormer, "say_former")
    /** Stored, but not used. */
    CONFIG_MEMBER(FilterItemTypeCode, "filter_item_type_code")

public:
    /** The prefix of the keys of all kitchens. */
    static QString keyPrefix() { return QStringLiteral("kitchen_printer"); }
    static QString keyFor(const QDateTime& moment)
    {
        return keyPrefix() + '_' + moment.toString("yyyy_MM_dd_hh_mm_ss");
    }

    using EntityConfigPrinter::EntityConfigPrinter;

    [[nodiscard]] bool printsByItself() const { return getAutoPrint() == yes(); }
    [[nodiscard]] bool saysFormer() const { return getSayFormer() == yes(); }
    /** Compares case and blanks exactly. */
    [[nodiscard]] bool cooks(const QString& itemTypeCode) const
    {
        return getKodeJenisItem().isEmpty() || getKodeJenisItem().split(',').contains(itemTypeCode);
    }
};
