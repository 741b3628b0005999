#pragma once

#include <QProxyStyle>

class QApplication;
class QStyleOptionButton;

/**
 * The program's style, the same on every platform: a light work area, controls large enough for quick touches, and one
 * accent color for the focused field and the default button.
 */
class HouseStyle final : public QProxyStyle
{
    Q_OBJECT

public:
    HouseStyle();

    /** Sets the style and its palette on the application. */
    static void apply(QApplication& application);

    using QProxyStyle::polish;
    void polish(QWidget* widget) override;
    [[nodiscard]] QPalette standardPalette() const override;
    [[nodiscard]] int pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const override;
    [[nodiscard]] int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                                QStyleHintReturn* data) const override;
    [[nodiscard]] QSize sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& contents,
                                         const QWidget* widget) const override;
    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override;
    void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override;
    [[nodiscard]] QRect subElementRect(SubElement element, const QStyleOption* option,
                                       const QWidget* widget) const override;
    [[nodiscard]] QIcon standardIcon(StandardPixmap icon, const QStyleOption* option,
                                     const QWidget* widget) const override;

private:
    void drawIconAndWord(const QStyleOptionButton& button, QPainter* painter, const QWidget* widget) const;
};
