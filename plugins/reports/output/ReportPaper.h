#pragma once

#include "reports/engine/ReportFormat.h"

#include <QFont>
#include <QStringList>
#include <QVector>

class QPainter;
class QPagedPaintDevice;
class ReportPlot;
class ReportTable;

/** Lays a report out on pages: heading, picture, the grid with its titles on each page, sums, page numbers. */
class ReportPaper
{
public:
    struct Heading
    {
        QString company;
        /** What was asked: the period and the filters, a line each. */
        QStringList asked;
        /** Who printed, and when. */
        QString printed;
    };

    /** The picture may be null. Everything is borrowed. */
    ReportPaper(const ReportTable& table, ReportPlot* plot, ReportFormat format, Heading heading);

    /** Pages are drawn to the device's present size; false when it cannot be drawn on. */
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
