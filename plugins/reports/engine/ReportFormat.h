#pragma once

#include "reports/engine/Report.h"

#include <QLocale>

class ReportTable;

/** The restaurant's locale for numbers and dates, independent of the program's language. */
[[nodiscard]] QLocale restaurantLocale();

/** Formats a report's values for screen and paper. */
class ReportFormat
{
public:
    explicit ReportFormat(QString dateFormat = "d MMM yyyy", const QLocale& locale = restaurantLocale());

    [[nodiscard]] QString text(const QVariant& value, ReportColumn::Kind kind) const;
    [[nodiscard]] QString number(double value, ReportColumn::Kind kind) const;
    /** The text of a cell; sum lines contain the word "Total". */
    [[nodiscard]] QString cell(const ReportTable& table, int line, int column) const;
    [[nodiscard]] static Qt::Alignment alignment(ReportColumn::Kind kind);

private:
    QString m_dateFormat;
    QLocale m_locale;
};
