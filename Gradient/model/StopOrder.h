// The order of color stops.
#pragma once

#include "host/Gradient.h"

#include <list>

/// Sorts stops by position, the smaller one first. Stops of equal position keep their order, and iterators
/// stay valid.
void SortGradients(std::list<CGradientColor>& colors);
