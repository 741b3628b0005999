#pragma once

#include "pos/printing/slips/SlipScript.h"

#include <QAbstractScrollArea>

/**
 * Shows a slip as printed paper, drawn from the bytes that were sent. The paper scales with the widget as long as it
 * can be read, and scrolls with wheel and keys.
 */
class SlipPaper final : public QAbstractScrollArea
{
    Q_OBJECT

public:
    explicit SlipPaper(QWidget* parent = nullptr);

    /** With 0 columns the paper is as wide as the longest line. */
    void showSlip(const QByteArray& bytes, int columns);
    /** Shows this text instead of a slip. */
    void showNothing(const QString& words);

    /** The text of the slip, without formatting. */
    [[nodiscard]] QString text() const;

    [[nodiscard]] QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void measure();
    [[nodiscard]] QSizeF paperSize() const;
    void drawPaper(QPainter& painter) const;
    void drawLine(QPainter& painter, const SlipLine& line, qreal top) const;
    void drawSpan(QPainter& painter, const SlipSpan& span, const QPointF& topLeft) const;
    void drawCut(QPainter& painter, qreal top) const;

    QList<SlipLine> m_lines;
    QString m_words;
    int m_columns = 0;
    // The size of a normal letter before scaling.
    QSizeF m_letter;
    qreal m_ascent = 0;
    qreal m_scale = 1;
};
