#pragma once

#include "reports/engine/ReportFormat.h"

#include <QFont>
#include <QStringList>
#include <QVector>

class QPainter;
class QPagedPaintDevice;
class ReportPlot;
class ReportTable;

/** Prints a report: heading, chart, the grid with its titles on each page, sums, page numbers. */
class ReportPaper
{
public:
    struct Heading
    {
        QString company;
        /** The period and the filters, one per line. */
        QStringList asked;
        /** Who printed, and when. */
        QString printed;
    };

    /** The chart may be null. Table and chart are borrowed. */
    ReportPaper(const ReportTable& table, ReportPlot* plot, ReportFormat format, Heading heading);

    /** Uses the device's current page size; false if painting on it fails. */
    [[nodiscard]] bool print(QPagedPaintDevice* device) const;

private:
    struct Sheet
    {
        QPainter* painter;
        qreal width;
        qreal height;
        qreal line;
        QVector<qreal> columns;
        QFont font;
    };

    [[nodiscard]] QVector<qreal> columnWidths(const Sheet& sheet) const;
    [[nodiscard]] qreal drawHeading(const Sheet& sheet) const;
    void drawTitles(const Sheet& sheet, qreal top) const;
    void drawLine(const Sheet& sheet, qreal top, int line) const;
    void drawFoot(const Sheet& sheet, int page, int pages) const;
    [[nodiscard]] int linesOn(const Sheet& sheet, qreal top) const;

    const ReportTable& m_table;
    ReportPlot* m_plot;
    ReportFormat m_format;
    Heading m_heading;
};
