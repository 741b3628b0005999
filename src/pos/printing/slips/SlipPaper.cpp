#include "pos/printing/slips/SlipPaper.h"

#include <QApplication>
#include <QEvent>
#include <QFontDatabase>
#include <QKeyEvent>
#include <QPainter>
#include <QPainterPath>
#include <QScrollBar>
#include <QStyle>
#include <QtMath>

#include <algorithm>

namespace
{
constexpr QRgb groundRgb = 0xffc9ced4;
constexpr QRgb paperRgb = 0xffffffff;
constexpr QRgb inkRgb = 0xff22262a;
constexpr QRgb shadowRgb = 0x30000000;
constexpr QRgb cutRgb = 0xff8a949e;
constexpr int fewestColumns = 24;
constexpr qreal groundWidth = 10;
constexpr qreal paperMargin = 12;
constexpr qreal tooth = 4;
constexpr int usualSize = 13;
constexpr qreal smallestScale = 0.58;
constexpr qreal largestScale = 1.4;

/** Wide enough for the columns of the paper; without columns, for the longest line. */
int columnsOf(const QList<SlipLine>& lines, int columns)
{
    int widest = columns > 0 ? columns : fewestColumns;
    for (const SlipLine& line : lines)
        widest = std::max(widest, line.width());
    return widest;
}
} // namespace

SlipPaper::SlipPaper(QWidget* parent) : QAbstractScrollArea(parent)
{
    QFont letters = QFontDatabase::systemFont(QFontDatabase::FixedFont);
    // A system may name no such font, but has one of these.
    letters.setFamilies({letters.family(), "DejaVu Sans Mono", "Liberation Mono", "monospace"});
    if (!QFontInfo(letters).fixedPitch())
        letters.setFamilies(letters.families().mid(1));
    letters.setStyleHint(QFont::Monospace);
    letters.setFixedPitch(true);
    letters.setPixelSize(usualSize);
    setFont(letters);
    measure();
}

void SlipPaper::showSlip(const QByteArray& bytes, int columns)
{
    m_lines = SlipScript::read(bytes, columns);
    m_columns = columnsOf(m_lines, columns);
    m_words.clear();
    setAccessibleDescription(text());
    horizontalScrollBar()->setValue(0);
    verticalScrollBar()->setValue(0);
    measure();
}

void SlipPaper::showNothing(const QString& words)
{
    m_lines.clear();
    m_columns = 0;
    m_words = words;
    setAccessibleDescription(words);
    measure();
}

QString SlipPaper::text() const
{
    QString all;
    for (const SlipLine& line : m_lines)
        all += line.text() + '\n';
    return all;
}

QSize SlipPaper::sizeHint() const
{
    constexpr int usualColumns = 40;
    constexpr int usualLines = 30;
    return {int(usualColumns * m_letter.width() + 2 * (groundWidth + paperMargin)),
            int(usualLines * m_letter.height())};
}

QSizeF SlipPaper::paperSize() const
{
    qreal lines = 0;
    for (const SlipLine& line : m_lines)
        lines += line.height();
    return {m_columns * m_letter.width() + 2 * paperMargin, lines * m_letter.height() + 2 * paperMargin};
}

void SlipPaper::measure()
{
    const QFontMetricsF metrics(font());
    m_letter = {metrics.horizontalAdvance('0'), metrics.height()};
    m_ascent = metrics.ascent();
    const QSizeF paper = paperSize();
    const qreal room = maximumViewportSize().width() - style()->pixelMetric(QStyle::PM_ScrollBarExtent);
    m_scale = std::clamp((room - 2 * groundWidth) / paper.width(), smallestScale, largestScale);
    const QSizeF needed = m_words.isEmpty() && !m_lines.isEmpty()
                              ? paper * m_scale + QSizeF(2 * groundWidth, 2 * groundWidth + tooth * m_scale)
                              : QSizeF();
    const QSize view = viewport()->size();
    horizontalScrollBar()->setRange(0, std::max(0, qCeil(needed.width()) - view.width()));
    horizontalScrollBar()->setPageStep(view.width());
    horizontalScrollBar()->setSingleStep(qCeil(m_letter.width()));
    verticalScrollBar()->setRange(0, std::max(0, qCeil(needed.height()) - view.height()));
    verticalScrollBar()->setPageStep(view.height());
    verticalScrollBar()->setSingleStep(qCeil(m_letter.height() * m_scale));
    viewport()->update();
}

void SlipPaper::paintEvent(QPaintEvent*)
{
    QPainter painter(viewport());
    painter.setRenderHint(QPainter::Antialiasing);
    painter.fillRect(viewport()->rect(), QColor(groundRgb));
    if (m_lines.isEmpty()) {
        painter.setPen(QColor(inkRgb));
        // Use the program's font and not that of the slip.
        QFont words = QApplication::font();
        words.setFamily(words.family());
        words.setPointSizeF(words.pointSizeF());
        painter.setFont(words);
        painter.drawText(viewport()->rect().adjusted(16, 16, -16, -16), Qt::AlignCenter | Qt::TextWordWrap, m_words);
        return;
    }
    const qreal left = std::max(groundWidth, (viewport()->width() - paperSize().width() * m_scale) / 2);
    painter.translate(left - horizontalScrollBar()->value(), groundWidth - verticalScrollBar()->value());
    painter.scale(m_scale, m_scale);
    drawPaper(painter);
}

void SlipPaper::drawPaper(QPainter& painter) const
{
    const QSizeF size = paperSize();
    // A torn edge at the bottom.
    QPainterPath paper;
    paper.addRect(QRectF(QPointF(), size));
    QPolygonF teeth;
    teeth << QPointF(size.width(), size.height());
    const int count = std::max(1, qRound(size.width() / (2 * tooth)));
    const qreal step = size.width() / count;
    for (int at = count; at > 0; --at)
        teeth << QPointF((at - 0.5) * step, size.height() + tooth) << QPointF((at - 1) * step, size.height());
    paper.addPolygon(teeth);
    painter.fillPath(paper.translated(2, 2), QColor::fromRgba(shadowRgb));
    painter.fillPath(paper, QColor(paperRgb));

    const QRectF seen = painter.transform().inverted().mapRect(QRectF(viewport()->rect()));
    qreal top = paperMargin;
    for (const SlipLine& line : m_lines) {
        const qreal height = line.height() * m_letter.height();
        if (top + height >= seen.top() && top <= seen.bottom())
            drawLine(painter, line, top);
        top += height;
    }
}

void SlipPaper::drawLine(QPainter& painter, const SlipLine& line, qreal top) const
{
    if (line.isCut) {
        drawCut(painter, top);
        return;
    }
    const int spare = std::max(0, m_columns - line.width());
    const int before = line.alignment == SlipLine::Left ? 0 : line.alignment == SlipLine::Right ? spare : spare / 2;
    QPointF at(paperMargin + before * m_letter.width(), top);
    for (const SlipSpan& span : line.spans) {
        // Align letters of all sizes at the bottom.
        drawSpan(painter, span, at + QPointF(0, (line.height() - span.height) * m_letter.height()));
        at.rx() += span.text.toUcs4().size() * span.width * m_letter.width();
    }
}

void SlipPaper::drawSpan(QPainter& painter, const SlipSpan& span, const QPointF& topLeft) const
{
    painter.save();
    painter.translate(topLeft);
    painter.scale(span.width, span.height);
    QFont letters = font();
    letters.setBold(span.bold);
    painter.setFont(letters);
    painter.setPen(QColor(inkRgb));
    // One by one: a missing letter comes from another font and must not shift the columns after it.
    qreal x = 0;
    const QVector<uint> points = span.text.toUcs4();
    for (const uint point : points) {
        painter.drawText(QPointF(x, m_ascent), QString::fromUcs4(&point, 1));
        x += m_letter.width();
    }
    if (span.underline)
        painter.drawLine(QPointF(0, m_ascent + 2), QPointF(x, m_ascent + 2));
    painter.restore();
}

void SlipPaper::drawCut(QPainter& painter, qreal top) const
{
    painter.save();
    painter.setPen(QPen(QColor(cutRgb), 1.2, Qt::DashLine));
    const qreal y = top + m_letter.height() / 2;
    painter.drawLine(QPointF(0, y), QPointF(paperSize().width(), y));
    painter.restore();
}

void SlipPaper::resizeEvent(QResizeEvent* event)
{
    QAbstractScrollArea::resizeEvent(event);
    measure();
}

void SlipPaper::keyPressEvent(QKeyEvent* event)
{
    // The scroll area handles arrows and page keys, but not Home and End.
    if (event->key() == Qt::Key_Home)
        verticalScrollBar()->triggerAction(QAbstractSlider::SliderToMinimum);
    else if (event->key() == Qt::Key_End)
        verticalScrollBar()->triggerAction(QAbstractSlider::SliderToMaximum);
    else
        QAbstractScrollArea::keyPressEvent(event);
}

void SlipPaper::changeEvent(QEvent* event)
{
    QAbstractScrollArea::changeEvent(event);
    if (event->type() == QEvent::FontChange)
        measure();
}
