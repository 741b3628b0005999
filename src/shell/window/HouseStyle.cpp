#include "shell/window/HouseStyle.h"

#include <QApplication>
#include <QFormLayout>
#include <QMessageBox>
#include <QPainter>
#include <QPalette>
#include <QStyleOptionButton>

#include <algorithm>

namespace
{
constexpr QRgb workAreaRgb = 0xfff4f5f7;
constexpr QRgb readOnlyRgb = 0xffe9ecef;
constexpr QRgb surfaceRgb = 0xffffffff;
constexpr QRgb inkRgb = 0xff1f2933;
constexpr QRgb quietInkRgb = 0xff8a949e;
constexpr QRgb lineRgb = 0xffb8c0c8;
constexpr QRgb accentRgb = 0xff005782;
constexpr int controlHeight = 30;
constexpr int iconSpacing = 6;
constexpr int fieldPadding = 4;
constexpr qreal cornerRadius = 3;

bool isAccented(const QStyleOptionButton& button)
{
    return (button.features & QStyleOptionButton::DefaultButton) && (button.state & QStyle::State_Enabled);
}

bool isSidebarCategory(const QWidget* widget) { return widget && widget->inherits("QtCategoryButton"); }

/** The icon in white, for the colored background of the default button. */
QPixmap whitened(QPixmap picture)
{
    QPainter painter(&picture);
    painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
    painter.fillRect(picture.rect(), Qt::white);
    return picture;
}

/** The icon of a message box: a character on a disc, sharp on high-DPI screens too. */
QIcon messageIcon(char sign, QRgb color)
{
    constexpr int size = 48;
    QPixmap picture(2 * size, 2 * size);
    picture.setDevicePixelRatio(2);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(color));
    const QRect disc(4, 4, size - 8, size - 8);
    painter.drawEllipse(disc);
    QFont font = QApplication::font();
    font.setPixelSize(26);
    font.setBold(true);
    painter.setFont(font);
    painter.setPen(Qt::white);
    painter.drawText(disc, Qt::AlignCenter, QString(QLatin1Char(sign)));
    painter.end();
    return QIcon(picture);
}

/** A cross, with a background under the mouse. */
void drawTabClose(const QStyleOption& option, QPainter* painter)
{
    const QRectF square = QRectF(option.rect).adjusted(1, 1, -1, -1);
    const bool underMouse = option.state & QStyle::State_MouseOver;
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    if (underMouse) {
        painter->setPen(Qt::NoPen);
        painter->setBrush(QColor(lineRgb));
        painter->drawRoundedRect(square, cornerRadius, cornerRadius);
    }
    painter->setPen(QPen(QColor(underMouse ? inkRgb : quietInkRgb), 1.6, Qt::SolidLine, Qt::RoundCap));
    const QRectF cross = square.adjusted(4, 4, -4, -4);
    painter->drawLine(cross.topLeft(), cross.bottomRight());
    painter->drawLine(cross.bottomLeft(), cross.topRight());
    painter->restore();
}

QColor buttonColor(const QStyleOptionButton& button)
{
    const bool isDefault = button.features & QStyleOptionButton::DefaultButton;
    QColor color = isDefault ? QColor(accentRgb) : QColor(surfaceRgb);
    if (!(button.state & QStyle::State_Enabled))
        return QColor(workAreaRgb);
    if (button.state & (QStyle::State_Sunken | QStyle::State_On))
        return isDefault ? color.darker(130) : QColor(0xdde3e9);
    if (button.state & QStyle::State_MouseOver)
        return isDefault ? color.lighter(120) : QColor(0xedf1f5);
    return color;
}
} // namespace

HouseStyle::HouseStyle() : QProxyStyle(QStringLiteral("Fusion")) {}

void HouseStyle::apply(QApplication& application)
{
    auto* style = new HouseStyle;
    application.setStyle(style);
    application.setPalette(style->standardPalette());
    QFont font = QApplication::font();
    font.setPointSize(11);
    QApplication::setFont(font);
}

QPalette HouseStyle::standardPalette() const
{
    QPalette palette;
    palette.setColor(QPalette::Window, QColor(workAreaRgb));
    palette.setColor(QPalette::WindowText, QColor(inkRgb));
    palette.setColor(QPalette::Base, QColor(surfaceRgb));
    palette.setColor(QPalette::AlternateBase, QColor(0xd4d4d4));
    palette.setColor(QPalette::Text, QColor(inkRgb));
    palette.setColor(QPalette::Button, QColor(surfaceRgb));
    palette.setColor(QPalette::ButtonText, QColor(inkRgb));
    palette.setColor(QPalette::BrightText, Qt::white);
    palette.setColor(QPalette::ToolTipBase, QColor(inkRgb));
    palette.setColor(QPalette::ToolTipText, Qt::white);
    palette.setColor(QPalette::PlaceholderText, QColor(quietInkRgb));
    palette.setColor(QPalette::Highlight, QColor(accentRgb));
    palette.setColor(QPalette::HighlightedText, Qt::white);
    palette.setColor(QPalette::Link, QColor(accentRgb));
    palette.setColor(QPalette::Light, Qt::white);
    palette.setColor(QPalette::Midlight, QColor(0xe4e7eb));
    palette.setColor(QPalette::Mid, QColor(lineRgb));
    palette.setColor(QPalette::Dark, QColor(0x8a949e));
    palette.setColor(QPalette::Shadow, QColor(0x52606d));
    for (QPalette::ColorRole role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        palette.setColor(QPalette::Disabled, role, QColor(quietInkRgb));
    palette.setColor(QPalette::Disabled, QPalette::Base, QColor(workAreaRgb));
    palette.setColor(QPalette::Disabled, QPalette::Highlight, QColor(lineRgb));
    return palette;
}

void HouseStyle::polish(QWidget* widget)
{
    QProxyStyle::polish(widget);
    // Messages show names of tables and items, which may look like markup.
    if (auto* message = qobject_cast<QMessageBox*>(widget))
        message->setTextFormat(Qt::PlainText);
}

int HouseStyle::pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const
{
    switch (metric) {
    case PM_LayoutLeftMargin:
    case PM_LayoutTopMargin:
    case PM_LayoutRightMargin:
    case PM_LayoutBottomMargin:
        return 12;
    case PM_LayoutHorizontalSpacing:
    case PM_LayoutVerticalSpacing:
        return 8;
    case PM_HeaderDefaultSectionSizeVertical:
        return controlHeight;
    case PM_ScrollBarExtent:
        return 18;
    case PM_HeaderMargin:
        return 8;
    // The padding left and right of a cell's text.
    case PM_FocusFrameHMargin:
        return widget && widget->inherits("QTableView") ? 6 : QProxyStyle::pixelMetric(metric, option, widget);
    default:
        return QProxyStyle::pixelMetric(metric, option, widget);
    }
}

int HouseStyle::styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                          QStyleHintReturn* data) const
{
    switch (hint) {
    // The categories of the sidebar show a menu's title, but its mnemonic works only in the menu.
    case SH_UnderlineShortcut:
        return widget && widget->inherits("QtCategoryButton") ? 0 : QProxyStyle::styleHint(hint, option, widget, data);
    case SH_FormLayoutFieldGrowthPolicy:
        return QFormLayout::ExpandingFieldsGrow;
    case SH_FormLayoutLabelAlignment:
        return Qt::AlignLeft | Qt::AlignVCenter;
    case SH_DialogButtonBox_ButtonsHaveIcons:
        return 1;
    default:
        return QProxyStyle::styleHint(hint, option, widget, data);
    }
}

QSize HouseStyle::sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& contents,
                                   const QWidget* widget) const
{
    QSize size = QProxyStyle::sizeFromContents(type, option, contents, widget);
    // Also for date edits: they measure their text without the padding of the field.
    if (type == CT_SpinBox)
        size.rwidth() += 2 * fieldPadding;
    switch (type) {
    case CT_PushButton:
        size.rwidth() += 8 + iconSpacing;
        [[fallthrough]];
    case CT_ComboBox:
    case CT_LineEdit:
    case CT_SpinBox:
    case CT_ToolButton:
    case CT_HeaderSection:
    case CT_TabBarTab:
        size.setHeight(std::max(size.height(), controlHeight));
        break;
    case CT_MenuBarItem:
    case CT_MenuItem:
        size.setHeight(size.height() <= 8 ? size.height() : std::max(size.height(), controlHeight - 2));
        break;
    default:
        break;
    }
    return size;
}

void HouseStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                               const QWidget* widget) const
{
    if (element == PE_IndicatorTabClose) {
        drawTabClose(*option, painter);
        return;
    }
    const auto* frame = qstyleoption_cast<const QStyleOptionFrame*>(option);
    if (element == PE_PanelLineEdit && frame && (frame->state & State_ReadOnly)) {
        // A read-only field has the background of the form.
        QStyleOptionFrame shown(*frame);
        shown.palette.setColor(QPalette::Base, QColor(readOnlyRgb));
        QProxyStyle::drawPrimitive(element, &shown, painter, widget);
        return;
    }
    const auto* button = qstyleoption_cast<const QStyleOptionButton*>(option);
    if (element != PE_PanelButtonCommand || !button || (button->features & QStyleOptionButton::Flat)) {
        QProxyStyle::drawPrimitive(element, option, painter, widget);
        return;
    }
    const bool focused = (button->state & State_HasFocus) && (button->state & State_KeyboardFocusChange);
    const bool enabled = button->state & State_Enabled;
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setPen(QPen(QColor((focused && enabled) || isAccented(*button) ? accentRgb : lineRgb), focused ? 2 : 1));
    painter->setBrush(buttonColor(*button));
    painter->drawRoundedRect(QRectF(option->rect).adjusted(1, 1, -1, -1), cornerRadius, cornerRadius);
    painter->restore();
}

void HouseStyle::drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                             const QWidget* widget) const
{
    const auto* button = qstyleoption_cast<const QStyleOptionButton*>(option);
    if (element == CE_PushButtonLabel && button && !button->icon.isNull() && !button->text.isEmpty() &&
        !(button->features & QStyleOptionButton::HasMenu) && !isSidebarCategory(widget)) {
        drawIconAndWord(*button, painter, widget);
        return;
    }
    if (element == CE_PushButtonLabel && button && isAccented(*button)) {
        QStyleOptionButton label(*button);
        label.palette.setColor(QPalette::ButtonText, Qt::white);
        QProxyStyle::drawControl(element, &label, painter, widget);
        return;
    }
    QProxyStyle::drawControl(element, option, painter, widget);
}

void HouseStyle::drawIconAndWord(const QStyleOptionButton& button, QPainter* painter, const QWidget* widget) const
{
    const bool enabled = button.state & State_Enabled;
    const QSize iconSize = button.icon.actualSize(button.iconSize);
    const int words = button.fontMetrics.size(Qt::TextShowMnemonic, button.text).width();
    QRect area(0, 0, iconSize.width() + iconSpacing + words, button.rect.height());
    area.moveCenter(button.rect.center());
    area = area.intersected(button.rect.adjusted(4, 0, -4, 0));

    QPixmap icon = button.icon.pixmap(widget ? widget->window()->windowHandle() : nullptr, iconSize,
                                      enabled ? QIcon::Normal : QIcon::Disabled);
    if (isAccented(button))
        icon = whitened(icon);
    QRect iconArea(QPoint(), iconSize);
    iconArea.moveCenter(area.center());
    iconArea.moveLeft(area.left());
    drawItemPixmap(painter, visualRect(button.direction, button.rect, iconArea), Qt::AlignCenter, icon);

    const QRect textArea = area.adjusted(iconSize.width() + iconSpacing, 0, 0, 0);
    const bool underline = proxy()->styleHint(SH_UnderlineShortcut, &button, widget);
    QPalette palette = button.palette;
    if (isAccented(button))
        palette.setColor(QPalette::ButtonText, Qt::white);
    drawItemText(painter, visualRect(button.direction, button.rect, textArea),
                 Qt::AlignLeft | Qt::AlignVCenter | (underline ? Qt::TextShowMnemonic : Qt::TextHideMnemonic), palette,
                 enabled, button.text, QPalette::ButtonText);
}

QRect HouseStyle::subElementRect(SubElement element, const QStyleOption* option, const QWidget* widget) const
{
    const QRect rect = QProxyStyle::subElementRect(element, option, widget);
    if (element == SE_LineEditContents)
        return rect.adjusted(fieldPadding, 0, -fieldPadding, 0);
    return element == SE_HeaderLabel ? rect.adjusted(4, 0, -4, 0) : rect;
}

QIcon HouseStyle::standardIcon(StandardPixmap icon, const QStyleOption* option, const QWidget* widget) const
{
    switch (icon) {
    case SP_MessageBoxInformation:
        return messageIcon('i', accentRgb);
    case SP_MessageBoxQuestion:
        return messageIcon('?', accentRgb);
    case SP_MessageBoxWarning:
        return messageIcon('!', 0xffb45f06);
    case SP_MessageBoxCritical:
        return messageIcon('!', 0xffb3261e);
    case SP_DialogOkButton:
    case SP_DialogYesButton:
    case SP_DialogApplyButton:
        return QIcon(":/icons/accept.png");
    case SP_DialogCancelButton:
    case SP_DialogCloseButton:
        return QIcon(":/icons/door_out.png");
    case SP_DialogSaveButton:
        return QIcon(":/icons/save.png");
    case SP_DialogDiscardButton:
    case SP_DialogNoButton:
        return QIcon(":/icons/reset.png");
    default:
        return QProxyStyle::standardIcon(icon, option, widget);
    }
}
