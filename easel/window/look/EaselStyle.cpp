// How tool buttons and bars are drawn.
#include "easel/window/look/EaselStyle.h"

#include <QApplication>
#include <QPainter>
#include <QStyleFactory>
#include <QStyleOption>
#include <QToolButton>
#include <QWidget>

#include <array>

namespace easel::window {
namespace {

constexpr double kCorner = 5.0;

void drawToolButtonPanel(const QStyleOption& option, QPainter& painter) {
    const bool on = (option.state & (QStyle::State_On | QStyle::State_Sunken)) != 0;
    const bool hovered =
        (option.state & QStyle::State_MouseOver) != 0 && (option.state & QStyle::State_Enabled) != 0;
    const bool focused = (option.state & QStyle::State_HasFocus) != 0;
    if (!on && !hovered && !focused)
        return;
    const QColor accent = option.palette.color(QPalette::Highlight);
    QColor fill = on ? accent : option.palette.color(QPalette::WindowText);
    fill.setAlphaF(on ? 0.22F : (hovered ? 0.08F : 0.0F));
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(focused ? QPen(accent, 1.5) : QPen(Qt::NoPen));
    painter.setBrush(fill);
    painter.drawRoundedRect(QRectF(option.rect).adjusted(1, 1, -1, -1), kCorner, kCorner);
    painter.restore();
}

// Fusion draws what frames a control darker than the ground, which hides it on a dark one.
bool needsOutlines(const QPalette& palette) {
    return palette.color(QPalette::Window).lightness() < palette.color(QPalette::WindowText).lightness();
}

// As strong as the palette wants to be.
QColor outlineColor(const QStyleOption& option) {
    const bool enabled = (option.state & QStyle::State_Enabled) != 0;
    if (enabled && (option.state & QStyle::State_HasFocus) != 0)
        return option.palette.color(QPalette::Highlight);
    const bool highContrast = option.palette.color(QPalette::Window).lightness() == 0;
    QColor color = option.palette.color(QPalette::WindowText);
    color.setAlphaF(highContrast ? 1.0F : (enabled ? 0.45F : 0.2F));
    return color;
}

void drawOutline(const QStyleOption& option, QPainter& painter) {
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(outlineColor(option), 1));
    painter.setBrush(Qt::NoBrush);
    painter.drawRoundedRect(QRectF(option.rect).adjusted(0.5, 0.5, -0.5, -0.5), 2, 2);
    painter.restore();
}

void drawTick(const QRectF& box, QPainter& painter) {
    const auto at = [&box](double x, double y) {
        return QPointF(box.left() + x * box.width(), box.top() + y * box.height());
    };
    const std::array points{at(0.22, 0.52), at(0.42, 0.72), at(0.78, 0.28)};
    painter.setPen(QPen(painter.brush().color(), 1.8, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.drawPolyline(points.data(), static_cast<int>(points.size()));
}

enum class Indicator { Radio, Check };

void drawIndicator(const QStyleOption& option, QPainter& painter, Indicator kind) {
    const bool on = (option.state & QStyle::State_On) != 0;
    const bool enabled = (option.state & QStyle::State_Enabled) != 0;
    const QRectF frame = QRectF(option.rect).adjusted(0.75, 0.75, -0.75, -0.75);
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(outlineColor(option), 1.5));
    painter.setBrush(option.palette.brush(QPalette::Base));
    if (kind == Indicator::Radio)
        painter.drawEllipse(frame);
    else
        painter.drawRoundedRect(frame, 2, 2);
    painter.setPen(Qt::NoPen);
    painter.setBrush(option.palette.color(enabled ? QPalette::Active : QPalette::Disabled, QPalette::Text));
    if (on && kind == Indicator::Radio)
        painter.drawEllipse(frame.center(), frame.width() * 0.26, frame.height() * 0.26);
    else if (on)
        drawTick(frame, painter);
    painter.restore();
}

void drawHairline(const QStyleOption& option, QPainter& painter, Qt::Edge edge) {
    QColor color = option.palette.color(QPalette::WindowText);
    color.setAlphaF(0.14F);
    const QRect r = option.rect;
    switch (edge) {
    case Qt::TopEdge:
        painter.fillRect(QRect(r.left(), r.top(), r.width(), 1), color);
        break;
    case Qt::BottomEdge:
        painter.fillRect(QRect(r.left(), r.bottom(), r.width(), 1), color);
        break;
    case Qt::LeftEdge:
        painter.fillRect(QRect(r.left(), r.top(), 1, r.height()), color);
        break;
    case Qt::RightEdge:
        painter.fillRect(QRect(r.right(), r.top(), 1, r.height()), color);
        break;
    }
}

} // namespace

bool EaselStyle::desktopHasStyle() {
    // A desktop's theme plug-in names its style before any window shows; "fusion" means that none did.
    const EaselStyle probe;
    return !probe.hasFusion();
}

void EaselStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                               const QWidget* widget) const {
    const bool outlined = hasFusion() && needsOutlines(option->palette);
    switch (element) {
    case PE_PanelButtonTool:
        drawToolButtonPanel(*option, *painter);
        return;
    case PE_IndicatorRadioButton:
    case PE_IndicatorCheckBox:
        if (outlined)
            drawIndicator(*option, *painter,
                          element == PE_IndicatorRadioButton ? Indicator::Radio : Indicator::Check);
        else
            QProxyStyle::drawPrimitive(element, option, painter, widget);
        return;
    case PE_PanelButtonCommand:
    case PE_FrameLineEdit:
        QProxyStyle::drawPrimitive(element, option, painter, widget);
        if (outlined)
            drawOutline(*option, *painter);
        return;
    case PE_PanelStatusBar:
        drawHairline(*option, *painter, Qt::TopEdge);
        return;
    case PE_FrameStatusBarItem:
        return;
    case PE_IndicatorArrowDown:
        drawMenuArrow(*option, *painter, widget);
        return;
    default:
        QProxyStyle::drawPrimitive(element, option, painter, widget);
    }
}

// The arrow of a button that opens a menu stands beside its text and not in the corner below.
void EaselStyle::drawMenuArrow(const QStyleOption& option, QPainter& painter, const QWidget* widget) const {
    QStyleOption placed(option);
    if (qobject_cast<const QToolButton*>(widget))
        placed.rect.moveCenter({option.rect.center().x() - 3, widget->rect().center().y() + 1});
    QProxyStyle::drawPrimitive(PE_IndicatorArrowDown, &placed, &painter, widget);
}

void EaselStyle::drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                                    QPainter* painter, const QWidget* widget) const {
    QProxyStyle::drawComplexControl(control, option, painter, widget);
    if ((control == CC_ComboBox || control == CC_SpinBox) && hasFusion() && needsOutlines(option->palette))
        drawOutline(*option, *painter);
}

bool EaselStyle::hasFusion() const {
    return baseStyle()->name() == QLatin1String("fusion");
}

void EaselStyle::drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                             const QWidget* widget) const {
    if (element != CE_ToolBar) {
        QProxyStyle::drawControl(element, option, painter, widget);
        return;
    }
    painter->fillRect(option->rect, option->palette.window());
    const auto* bar = qstyleoption_cast<const QStyleOptionToolBar*>(option);
    if (bar)
        drawHairline(*option, *painter,
                     bar->toolBarArea == Qt::LeftToolBarArea ? Qt::RightEdge : Qt::BottomEdge);
}

int EaselStyle::pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const {
    switch (metric) {
    case PM_ToolBarFrameWidth:
        return 0;
    case PM_ToolBarItemMargin:
        return 4;
    case PM_ToolBarItemSpacing:
        return 2;
    case PM_ButtonShiftHorizontal:
    case PM_ButtonShiftVertical:
        return 0;
    default:
        return QProxyStyle::pixelMetric(metric, option, widget);
    }
}

int EaselStyle::styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                          QStyleHintReturn* data) const {
    if (hint == SH_ToolTip_WakeUpDelay)
        return 500;
    // A list scrolls and takes thousands of entries and any text; a menu does neither.
    if (hint == SH_ComboBox_Popup)
        return 0;
    if (hint == SH_DialogButtonBox_ButtonsHaveIcons)
        return 0;
    return QProxyStyle::styleHint(hint, option, widget, data);
}

} // namespace easel::window
