#pragma once

#include "reports/engine/ReportFormat.h"

#include <qwt_plot.h>

class ReportTable;

/** The chart of a report. */
class ReportPlot final : public QwtPlot
{
    Q_OBJECT

public:
    explicit ReportPlot(QWidget* parent = nullptr);

    /** Draws the chart of the table's report; false if there is nothing to draw. */
    bool show(const ReportTable& table, const ReportFormat& format);
    /** Draws the same chart on paper. */
    void paint(QPainter* painter, const QRectF& area);

private:
    struct Series
    {
        QString title;
        QVector<double> values;
    };

    void drawBars(const QList<Series>& series);
    void drawLines(const QList<Series>& series);
    void setScales(const QStringList& labels, const ReportFormat& format, ReportColumn::Kind kind);
};
