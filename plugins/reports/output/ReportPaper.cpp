#include "reports/output/ReportPaper.h"

#include "reports/engine/ReportTable.h"
#include "reports/output/ReportPlot.h"

#include <QPagedPaintDevice>
#include <QPainter>

#include <algorithm>
#include <cmath>
#include <numeric>

namespace
{
constexpr int widestSample = 400;
const QColor ruleColor("#b8bec6");
const QColor sumColor("#eef1f4");
} // namespace

ReportPaper::ReportPaper(const ReportTable& table, ReportPlot* plot, ReportFormat format, Heading heading)
    : m_table(table), m_plot(plot), m_format(std::move(format)), m_heading(std::move(heading))
{}

bool ReportPaper::print(QPagedPaintDevice* device) const
{
    QPainter painter;
    if (!painter.begin(device))
        return false;
    Sheet sheet{&painter, qreal(device->width()), qreal(device->height()), 0, {}, QFont("DejaVu Sans", 8)};
    painter.setFont(sheet.font);
    sheet.line = std::ceil(QFontMetricsF(sheet.font, device).height() * 1.35);
    sheet.columns = columnWidths(sheet);
    // If the grid is wider than the paper, the font gets smaller, down to a readable size.
    const qreal needed = std::accumulate(sheet.columns.cbegin(), sheet.columns.cend(), qreal(0));
    if (needed > sheet.width) {
        sheet.font.setPointSizeF(std::max(5.5, 8 * sheet.width / needed));
        painter.setFont(sheet.font);
        sheet.line = std::ceil(QFontMetricsF(sheet.font, device).height() * 1.35);
        sheet.columns = columnWidths(sheet);
    }
    const qreal sum = std::accumulate(sheet.columns.cbegin(), sheet.columns.cend(), qreal(0));
    for (qreal& width : sheet.columns)
        width *= sheet.width / std::max(sum, qreal(1));

    const qreal firstTop = drawHeading(sheet);
    const int firstLines = linesOn(sheet, firstTop);
    const int otherLines = linesOn(sheet, 0);
    const int rest = std::max(0, m_table.lineCount() - firstLines);
    const int pages = 1 + (rest + otherLines - 1) / otherLines;
    int line = 0;
    for (int page = 1; page <= pages; ++page) {
        qreal top = page == 1 ? firstTop : 0;
        if (page > 1)
            device->newPage();
        drawTitles(sheet, top);
        top += sheet.line * 1.4;
        const int lines = page == 1 ? firstLines : otherLines;
        for (int i = 0; i < lines && line < m_table.lineCount(); ++i, ++line, top += sheet.line)
            drawLine(sheet, top, line);
        drawFoot(sheet, page, pages);
    }
    return painter.end();
}

int ReportPaper::linesOn(const Sheet& sheet, qreal top) const
{
    return std::max(1, int((sheet.height - top - sheet.line * 3.4) / sheet.line));
}

QVector<qreal> ReportPaper::columnWidths(const Sheet& sheet) const
{
    QFont bold = sheet.font;
    bold.setBold(true);
    const QFontMetricsF metrics(bold, sheet.painter->device());
    QVector<qreal> widths;
    for (int column = 0; column < m_table.report().columns.size(); ++column) {
        const ReportColumn& shown = m_table.report().columns.at(column);
        qreal widest = metrics.horizontalAdvance(reportText(shown.title));
        const int step = std::max(1, m_table.lineCount() / widestSample);
        const auto measure = [&](int line) {
            widest = std::max(widest, metrics.horizontalAdvance(m_format.cell(m_table, line, column)));
        };
        for (int line = 0; line < m_table.lineCount(); line += step)
            measure(line);
        // The totals are usually the widest figures.
        if (m_table.lineCount() > 0)
            measure(m_table.lineCount() - 1);
        // One long note must not push the figures from the paper.
        if (shown.kind == ReportColumn::Text)
            widest = std::min(widest, sheet.width * 0.3);
        widths.append(widest + metrics.averageCharWidth() * 2);
    }
    return widths;
}

qreal ReportPaper::drawHeading(const Sheet& sheet) const
{
    QPainter* painter = sheet.painter;
    qreal top = 0;
    const auto write = [&](const QString& text, qreal size, bool bold) {
        if (text.isEmpty())
            return;
        QFont font = sheet.font;
        font.setPointSizeF(size);
        font.setBold(bold);
        painter->setFont(font);
        const qreal height = QFontMetricsF(font, painter->device()).height();
        painter->drawText(QRectF(0, top, sheet.width, height), Qt::AlignLeft | Qt::AlignVCenter, text);
        top += height * 1.15;
    };
    painter->setPen(Qt::black);
    write(m_heading.company, 10, false);
    write(m_table.report().titleText(), 15, true);
    for (const QString& line : m_heading.asked)
        write(line, 8, false);
    top += sheet.line * 0.5;
    if (m_plot) {
        const QRectF area(0, top, sheet.width, std::min(sheet.width * 0.35, sheet.height * 0.35));
        m_plot->paint(painter, area);
        top = area.bottom() + sheet.line * 0.5;
    }
    painter->setFont(sheet.font);
    return top;
}

void ReportPaper::drawTitles(const Sheet& sheet, qreal top) const
{
    QPainter* painter = sheet.painter;
    QFont bold = sheet.font;
    bold.setBold(true);
    painter->setFont(bold);
    painter->setPen(Qt::black);
    const qreal gap = QFontMetricsF(sheet.font, painter->device()).averageCharWidth();
    qreal left = 0;
    for (int i = 0; i < sheet.columns.size(); ++i) {
        const ReportColumn& column = m_table.report().columns.at(i);
        painter->drawText(QRectF(left + gap, top, sheet.columns.at(i) - 2 * gap, sheet.line),
                          int(ReportFormat::alignment(column.kind)), reportText(column.title));
        left += sheet.columns.at(i);
    }
    painter->setPen(QPen(Qt::black, 0));
    painter->drawLine(QPointF(0, top + sheet.line * 1.15), QPointF(sheet.width, top + sheet.line * 1.15));
    painter->setFont(sheet.font);
}

void ReportPaper::drawLine(const Sheet& sheet, qreal top, int line) const
{
    QPainter* painter = sheet.painter;
    const bool isSum = m_table.lineKind(line) != ReportTable::RowLine;
    if (isSum)
        painter->fillRect(QRectF(0, top, sheet.width, sheet.line), sumColor);
    QFont font = sheet.font;
    font.setBold(isSum);
    painter->setFont(font);
    painter->setPen(Qt::black);
    const QFontMetricsF metrics(font, painter->device());
    const qreal gap = metrics.averageCharWidth();
    qreal left = 0;
    for (int i = 0; i < sheet.columns.size(); ++i) {
        const ReportColumn& column = m_table.report().columns.at(i);
        QString text = m_format.cell(m_table, line, i);
        const QRectF cell(left + gap, top, sheet.columns.at(i) - 2 * gap, sheet.line);
        if (column.kind == ReportColumn::Text)
            text = metrics.elidedText(text.simplified(), Qt::ElideRight, cell.width());
        painter->drawText(cell, int(ReportFormat::alignment(column.kind)), text);
        left += sheet.columns.at(i);
    }
    painter->setPen(QPen(ruleColor, 0));
    painter->drawLine(QPointF(0, top + sheet.line), QPointF(sheet.width, top + sheet.line));
}

void ReportPaper::drawFoot(const Sheet& sheet, int page, int pages) const
{
    QPainter* painter = sheet.painter;
    painter->setFont(sheet.font);
    painter->setPen(Qt::darkGray);
    const QRectF foot(0, sheet.height - sheet.line, sheet.width, sheet.line);
    painter->drawText(foot, Qt::AlignLeft | Qt::AlignVCenter, m_heading.printed);
    painter->drawText(foot, Qt::AlignRight | Qt::AlignVCenter,
                      reportText(QT_TRANSLATE_NOOP("Reports", "Page %1 of %2")).arg(page).arg(pages));
}
