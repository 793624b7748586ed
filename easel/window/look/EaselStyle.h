// Small refinements of the desktop's own widget style.
#pragma once

#include <QProxyStyle>

namespace easel::window {

// Flat tool buttons, quiet bars, keyboard focus that shows, and controls that can be seen on a dark ground.
class EaselStyle : public QProxyStyle {
    Q_OBJECT

  public:
    // Whether the desktop names a style; without one Qt falls back to its plain Fusion style.
    static bool desktopHasStyle();

    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override;
    void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override;
    void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option, QPainter* painter,
                            const QWidget* widget) const override;
    int pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const override;
    int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                  QStyleHintReturn* data) const override;

  private:
    bool hasFusion() const;
    void drawMenuArrow(const QStyleOption& option, QPainter& painter, const QWidget* widget) const;
};

} // namespace easel::window
