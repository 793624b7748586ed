// What a shape is called and what fills it, in words.
#pragma once

#include "easel/drawing/Object.h"

#include <QString>

namespace easel::window {

// "Rectangle", or with its id: "Rectangle “roof”".
QString shapeName(const drawing::Object& object);

// Such as "linear gradient, 3 stops, 45°" or "#12c84a".
QString fillText(const drawing::Object& object);

} // namespace easel::window
