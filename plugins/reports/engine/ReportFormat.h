#pragma once

#include "reports/engine/Report.h"

#include <QLocale>

class ReportTable;

/** How the restaurant writes figures and days, whatever language the program speaks. */
[[nodiscard]] QLocale restaurantLocale();

/** How a report's values read on screen and paper. */
class ReportFormat
{
public:
    explicit ReportFormat(QString dateFormat = "d MMM yyyy", const QLocale& locale = restaurantLocale());

    [[nodiscard]] QString text(const QVariant& value, ReportColumn::Kind kind) const;
    [[nodiscard]] QString number(double value, ReportColumn::Kind kind) const;
    /** A cell as grid and paper show it; lines of sums say so in their first words. */
    [[nodiscard]] QString cell(const ReportTable& table, int line, int column) const;
    [[nodiscard]] static Qt::Alignment alignment(ReportColumn::Kind kind);

private:
    QString m_dateFormat;
    QLocale m_locale;
};
