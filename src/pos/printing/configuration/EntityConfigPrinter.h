#pragma once

#include "app/configuration/EntityAppConfig.h"

/** The settings of one slip printer. A number that cannot be parsed counts as 0. */
class EntityConfigPrinter : public EntityAppConfig
{
    Q_OBJECT
    CONFIG_MEMBER(PrinterName, "printer_name")
    CONFIG_MEMBER(PrinterType, "printer_type")
    CONFIG_MEMBER(AutoCutter, "auto_cutter")
    CONFIG_MEMBER(Notes, "notes")
    CONFIG_MEMBER(NoOfCopy, "no_of_copy")
    CONFIG_MEMBER(ColumnPaper, "column_paper")
    CONFIG_MEMBER(NoOfBlankLines, "no_of_blank_lines")
    CONFIG_MEMBER(Format, "format")
    /** "Yes" if the user chose a printer that has the same name as installedName(). */
    CONFIG_MEMBER(PrinterChosen, "printer_chosen")

public:
    /** The stored values of a switch; compared case-sensitively. */
    static QString yes() { return QStringLiteral("Yes"); }
    static QString no() { return QStringLiteral("No"); }

    /** The printer name that the installer inserts. It means "no printer yet". */
    static QString installedName() { return QStringLiteral("GenericDotMatrix"); }

    explicit EntityConfigPrinter(QObject* parent = nullptr) : EntityAppConfig(parent) { setIsStoredAsJSON(true); }

    [[nodiscard]] bool isAsInstalled() const
    {
        return getPrinterName() == installedName() && getPrinterChosen() != yes();
    }
    [[nodiscard]] int columns() const { return getColumnPaper().toInt(); }
    [[nodiscard]] int copies() const { return getNoOfCopy().toInt(); }
    [[nodiscard]] int blankLines() const { return getNoOfBlankLines().toInt(); }
    [[nodiscard]] bool cutsPaper() const { return getAutoCutter() == yes(); }
};
