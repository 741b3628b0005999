#pragma once

#include "pos/printing/configuration/EntityConfigPrinter.h"

#include <QDateTime>

/**
 * One kitchen: its printer and the item types that it cooks. The printer type is kept for the form alone; slips are
 * cut the way the cashier printer's type says.
 */
class EntityConfigKitchenPrinter final : public EntityConfigPrinter
{
    Q_OBJECT
    CONFIG_MEMBER(KitchenName, "kitchen_name")
    /** "Yes" where a slip prints by itself when an order is sent. */
    CONFIG_MEMBER(AutoPrint, "auto_print")
    /** Codes of item types, joined by commas; empty means all. */
    CONFIG_MEMBER(KodeJenisItem, "kode_jenis_item")
    /** "Yes" where a changed line tells what it was. */
    CONFIG_MEMBER(SayFormer, "say_former")
    /** Kept in the row; nothing reads it. */
    CONFIG_MEMBER(FilterItemTypeCode, "filter_item_type_code")

public:
    /** What the keys of all kitchens begin with. */
    static QString keyPrefix() { return QStringLiteral("kitchen_printer"); }
    static QString keyFor(const QDateTime& moment)
    {
        return keyPrefix() + '_' + moment.toString("yyyy_MM_dd_hh_mm_ss");
    }

    using EntityConfigPrinter::EntityConfigPrinter;

    [[nodiscard]] bool printsByItself() const { return getAutoPrint() == yes(); }
    [[nodiscard]] bool saysFormer() const { return getSayFormer() == yes(); }
    /** Minds letter case and blanks. */
    [[nodiscard]] bool cooks(const QString& itemTypeCode) const
    {
        return getKodeJenisItem().isEmpty() || getKodeJenisItem().split(',').contains(itemTypeCode);
    }
};
