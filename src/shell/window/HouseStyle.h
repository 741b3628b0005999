#pragma once

#include <QProxyStyle>

class QApplication;
class QStyleOptionButton;

/**
 * The program's look, the same on every platform: calm light work area, controls for a hurried finger, and one accent
 * for the focused field and the button that Return presses.
 */
class HouseStyle final : public QProxyStyle
{
    Q_OBJECT

public:
    HouseStyle();

    /** Gives the application the style with its palette. */
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
