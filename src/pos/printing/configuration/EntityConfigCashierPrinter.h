#pragma once

#include "pos/printing/configuration/EntityConfigPrinter.h"

/** The printer of bills and order recaps. There is one row, which the installer lays down. */
class EntityConfigCashierPrinter final : public EntityConfigPrinter
{
    Q_OBJECT

public:
    static QString rowKey() { return QStringLiteral("cashier_printer"); }
    /** The text that a new row keeps as its format. It is stored for completeness: bills are composed by the program.
     */
    static QString billTemplate();

    explicit EntityConfigCashierPrinter(QObject* parent = nullptr) : EntityConfigPrinter(parent) { setKey(rowKey()); }
};
