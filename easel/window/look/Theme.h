// The colors of the application in light and dark, chosen here where the desktop brings no style of its own.
#pragma once

#include <QColor>

namespace easel::window {

enum class Appearance { AsDesktop, Light, Dark, HighContrast };

// Gives the whole application the look asked for; every open window follows at once.
void applyAppearance(Appearance appearance);

// What the user chose last, kept in the settings.
Appearance storedAppearance();
void storeAppearance(Appearance appearance);

// Whether the application now shows light text on a dark ground.
bool isDark();

// The ground around the page of a drawing, and the hairline and shadow at the page's edge.
struct CanvasColors {
    QColor surround;
    QColor pageEdge;
    QColor shadow;
};
CanvasColors canvasColors();

// The color for icons and quiet texts that stand next to ordinary text.
QColor quietText();

} // namespace easel::window
