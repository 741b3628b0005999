#include "reports/output/ReportPlot.h"

#include "reports/engine/ReportTable.h"

#include <QPainter>

#include <qwt_column_symbol.h>
#include <qwt_legend.h>
#include <qwt_plot_curve.h>
#include <qwt_plot_grid.h>
#include <qwt_plot_layout.h>
#include <qwt_plot_multi_barchart.h>
#include <qwt_plot_renderer.h>
#include <qwt_scale_draw.h>
#include <qwt_scale_engine.h>
#include <qwt_symbol.h>
#include <qwt_text.h>

#include <algorithm>

namespace
{
constexpr int rankedBars = 12;
constexpr int fewBars = 6;
constexpr int longestLabel = 16;

const QColor seriesColors[] = {QColor("#2f6fb5"), QColor("#e08a2b"), QColor("#4c9a5b"), QColor("#a2527f")};

QColor seriesColor(int index) { return seriesColors[index % 4]; }

/** Labels under the bars, as many as fit. */
class CategoryScale final : public QwtScaleDraw
{
public:
    explicit CategoryScale(QStringList labels) : m_labels(std::move(labels))
    {
        enableComponent(QwtScaleDraw::Ticks, false);
    }
    [[nodiscard]] QwtText label(double value) const override
    {
        const int index = qRound(value);
        if (!qFuzzyIsNull(value - index))
            return {};
        QString text = m_labels.value(index);
        if (text.length() > longestLabel)
            text = text.left(longestLabel - 1) + QChar(0x2026);
        return text;
    }

private:
    QStringList m_labels;
};

class NumberScale final : public QwtScaleDraw
{
public:
    NumberScale(ReportFormat format, ReportColumn::Kind kind) : m_format(std::move(format)), m_kind(kind) {}
    [[nodiscard]] QwtText label(double value) const override { return m_format.number(value, m_kind); }

private:
    ReportFormat m_format;
    ReportColumn::Kind m_kind;
};

/** Sums of equal categories, in the order of their first row. */
struct Categories
{
    QStringList labels;
    QHash<QString, int> indexes;

    int indexOf(const QString& label)
    {
        const auto known = indexes.constFind(label);
        if (known != indexes.constEnd())
            return *known;
        indexes.insert(label, labels.size());
        labels.append(label);
        return labels.size() - 1;
    }
};
} // namespace

ReportPlot::ReportPlot(QWidget* parent) : QwtPlot(parent)
{
    setCanvasBackground(Qt::white);
    setAutoReplot(false);
    plotLayout()->setAlignCanvasToScales(true);
    setMinimumHeight(180);
}

bool ReportPlot::show(const ReportTable& table, const ReportFormat& format)
{
    detachItems(QwtPlotItem::Rtti_PlotItem, true);
    insertLegend(nullptr);
    const Report& report = table.report();
    const int category = report.columnOf(report.chart.category);
    if (report.chart.kind == ReportChart::None || category < 0 || table.rowCount() == 0)
        return false;

    Categories categories;
    QList<Series> series;
    ReportColumn::Kind kind = ReportColumn::Count;
    for (const QString& field : report.chart.series) {
        const int column = report.columnOf(field);
        if (column < 0)
            continue;
        kind = report.columns.at(column).kind;
        Series values{reportText(report.columns.at(column).title), {}};
        for (int row = 0; row < table.rowCount(); ++row) {
            const QString label = format.text(table.rowValue(row, category), report.columns.at(category).kind);
            const int index = categories.indexOf(label);
            if (values.values.size() <= index)
                values.values.resize(index + 1);
            values.values[index] += table.rowValue(row, column).toDouble();
        }
        series.append(values);
    }
    if (series.isEmpty())
        return false;
    if (report.chart.ranked) {
        QVector<double>& values = series.first().values;
        QVector<int> order(values.size());
        for (int i = 0; i < order.size(); ++i)
            order[i] = i;
        std::stable_sort(order.begin(), order.end(),
                         [&values](int left, int right) { return values.at(left) > values.at(right); });
        QStringList labels;
        QVector<double> ranked;
        double others = 0;
        for (int i = 0; i < order.size(); ++i) {
            if (i < rankedBars) {
                labels.append(categories.labels.at(order.at(i)));
                ranked.append(values.at(order.at(i)));
            } else {
                others += values.at(order.at(i));
            }
        }
        if (order.size() > rankedBars) {
            labels.append(reportText(QT_TRANSLATE_NOOP("Reports", "Others")));
            ranked.append(others);
        }
        categories.labels = labels;
        values = ranked;
    }
    for (Series& values : series)
        values.values.resize(categories.labels.size());

    if (report.chart.kind == ReportChart::Lines && categories.labels.size() > 1)
        drawLines(series);
    else
        drawBars(series);
    auto* grid = new QwtPlotGrid;
    grid->enableX(false);
    grid->setPen(QColor("#e3e6ea"), 1);
    grid->attach(this);
    if (series.size() > 1)
        insertLegend(new QwtLegend, QwtPlot::BottomLegend);
    setScales(categories.labels, format, kind);
    replot();
    return true;
}

void ReportPlot::drawBars(const QList<Series>& series)
{
    QVector<QVector<double>> samples(series.first().values.size());
    QList<QwtText> barTitles;
    for (const Series& values : series) {
        barTitles.append(QwtText(values.title));
        for (int i = 0; i < samples.size(); ++i)
            samples[i].append(values.values.at(i));
    }
    auto* bars = new QwtPlotMultiBarChart;
    bars->setBarTitles(barTitles);
    bars->setSamples(samples);
    bars->setLayoutPolicy(QwtPlotMultiBarChart::AutoAdjustSamples);
    if (samples.size() < fewBars) {
        // Few bars would get too wide otherwise.
        bars->setLayoutPolicy(QwtPlotMultiBarChart::ScaleSampleToCanvas);
        bars->setLayoutHint(0.7 / fewBars);
    }
    bars->setSpacing(samples.size() > 40 ? 1 : 8);
    bars->setMargin(8);
    for (int i = 0; i < series.size(); ++i) {
        auto* symbol = new QwtColumnSymbol(QwtColumnSymbol::Box);
        symbol->setFrameStyle(QwtColumnSymbol::NoFrame);
        symbol->setPalette(QPalette(seriesColor(i)));
        bars->setSymbol(i, symbol);
    }
    bars->setRenderHint(QwtPlotItem::RenderAntialiased, false);
    bars->attach(this);
}

void ReportPlot::drawLines(const QList<Series>& series)
{
    for (int s = 0; s < series.size(); ++s) {
        auto* curve = new QwtPlotCurve(series.at(s).title);
        QVector<QPointF> points;
        for (int i = 0; i < series.at(s).values.size(); ++i)
            points.append({qreal(i), series.at(s).values.at(i)});
        curve->setSamples(points);
        curve->setPen(seriesColor(s), 2);
        curve->setRenderHint(QwtPlotItem::RenderAntialiased, true);
        curve->setLegendAttribute(QwtPlotCurve::LegendShowLine, true);
        if (points.size() <= 62)
            curve->setSymbol(new QwtSymbol(QwtSymbol::Ellipse, seriesColor(s), QPen(Qt::white), QSize(6, 6)));
        curve->attach(this);
    }
}

void ReportPlot::setScales(const QStringList& labels, const ReportFormat& format, ReportColumn::Kind kind)
{
    auto* categories = new CategoryScale(labels);
    // Rotated labels need less room.
    const bool crowded = labels.size() > 8;
    categories->setLabelRotation(crowded ? -35 : 0);
    categories->setLabelAlignment(crowded ? Qt::AlignLeft | Qt::AlignBottom : Qt::AlignHCenter | Qt::AlignBottom);
    setAxisScaleDraw(QwtPlot::xBottom, categories);
    const int step = std::max(1, (labels.size() + 15) / 16);
    QList<double> ticks;
    for (int tick = 0; tick < labels.size(); tick += step)
        ticks.append(tick);
    QwtScaleDiv division(-0.5, labels.size() - 0.5);
    division.setTicks(QwtScaleDiv::MajorTick, ticks);
    setAxisScaleDiv(QwtPlot::xBottom, division);
    setAxisScaleDraw(QwtPlot::yLeft, new NumberScale(format, kind));
    setAxisAutoScale(QwtPlot::yLeft);
    axisScaleEngine(QwtPlot::yLeft)->setReference(0);
    axisScaleEngine(QwtPlot::yLeft)->setAttribute(QwtScaleEngine::IncludeReference);
    updateAxes();
}

void ReportPlot::paint(QPainter* painter, const QRectF& area)
{
    QwtPlotRenderer renderer;
    renderer.setDiscardFlag(QwtPlotRenderer::DiscardBackground);
    renderer.setDiscardFlag(QwtPlotRenderer::DiscardCanvasFrame);
    renderer.render(this, painter, area);
}
