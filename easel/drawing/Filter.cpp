// Where a filter shows.
#include "easel/drawing/Filter.h"

namespace easel::drawing {

Box Filter::bounds() const {
    return boxUnder(region, toDrawing);
}

} // namespace easel::drawing
