// Drawings of any size, as the text of an SVG file.
#pragma once

#include <string>

namespace bench {

enum class Fills { Colors, OneGradient, OwnGradients };

// Ellipses that overlap their neighbors a little, on as large a sheet as they need. Own gradients are like no
// other in this drawing or in one of another size.
std::string drawingFile(int count, Fills fills);

} // namespace bench
