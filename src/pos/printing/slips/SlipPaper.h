#pragma once

#include "pos/printing/slips/SlipScript.h"

#include <QAbstractScrollArea>

/**
 * A slip as the paper that comes out of the printer, drawn from the very bytes that were sent there. The paper is as
 * wide as its columns and grows and shrinks with the widget, within what can be read; it scrolls by wheel and keys.
 */
class SlipPaper final : public QAbstractScrollArea
{
    Q_OBJECT

public:
    explicit SlipPaper(QWidget* parent = nullptr);

    /** Without columns (0) the paper is as wide as the longest line. */
    void showSlip(const QByteArray& bytes, int columns);
    /** No paper, and these words in its place. */
    void showNothing(const QString& words);

    /** The lines as they stand on the paper, without how they look. */
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
    // Of a letter in its usual size, before the paper is scaled.
    QSizeF m_letter;
    qreal m_ascent = 0;
    qreal m_scale = 1;
};
