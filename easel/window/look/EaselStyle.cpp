// How tool buttons and bars are drawn.
#include "easel/window/look/EaselStyle.h"

#include <QApplication>
#include <QPainter>
#include <QStyleFactory>
#include <QStyleOption>
#include <QToolButton>
#include <QWidget>

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
    return probe.baseStyle() && probe.baseStyle()->name() != QLatin1String("fusion");
}

void EaselStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                               const QWidget* widget) const {
    switch (element) {
    case PE_PanelButtonTool:
        drawToolButtonPanel(*option, *painter);
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
