// A small picture of a gradient, for menus.
#pragma once

#include <QIcon>

class CGradientData;

namespace easel::window {

QIcon gradientIcon(const CGradientData& gradient, double deviceScale);

} // namespace easel::window
