// Drawings of any size, as the text of an SVG file.
#pragma once

#include "easel/drawing/Drawing.h"

#include <string>

namespace bench {

enum class Fills { Colors, OneGradient, OwnGradients };

// Ellipses that overlap their neighbors a little, on as large a sheet as they need. Own gradients are like no
// other in this drawing or in one of another size.
std::string drawingFile(int count, Fills fills);

// The drawing in the text of a file. Throws std::logic_error if there is none.
easel::drawing::Drawing opened(std::string bytes);

} // namespace bench
