#pragma once

#include "pos/printing/configuration/EntityConfigPrinter.h"

/** The printer of bills and order recaps. There is one row, which the installer inserts. */
class EntityConfigCashierPrinter final : public EntityConfigPrinter
{
    Q_OBJECT

public:
    static QString rowKey() { return QStringLiteral("cashier_printer"); }
    /** The format text of a new row. It is stored but not used: the program composes the bills. */
    static QString billTemplate();

    explicit EntityConfigCashierPrinter(QObject* parent = nullptr) : EntityConfigPrinter(parent) { setKey(rowKey()); }
};
