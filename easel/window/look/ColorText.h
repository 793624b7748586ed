// Colors in words.
#pragma once

#include "easel/drawing/Color.h"

#include <QColor>
#include <QString>

namespace easel::window {

// "#rrggbb"
inline QString colorText(const drawing::Rgb16& color) {
    return QColor(qRgba64(color.red, color.green, color.blue, 0xffff)).name();
}

} // namespace easel::window
