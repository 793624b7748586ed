// The order of color stops.
#include "Gradient/model/StopOrder.h"

void SortGradients(std::list<CGradientColor>& colors) {
    colors.sort();
}
