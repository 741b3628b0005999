#pragma once

#include "app/configuration/EntityAppConfig.h"

/** Where the slips of one place go and how they look there. A number that cannot be read counts as 0. */
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
    /** "Yes" where a person chose a printer of the installer's name from the list. */
    CONFIG_MEMBER(PrinterChosen, "printer_chosen")

public:
    /** How a switch is stored; the comparison minds the letter case. */
    static QString yes() { return QStringLiteral("Yes"); }
    static QString no() { return QStringLiteral("No"); }

    /** The name that the installer lays down. It stands for "no printer yet". */
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
