// Hands out polygons and fills them once they are complete.
#include "easel/runtime/PolygonRecording.h"

#include <memory>
#include <utility>

namespace easel::runtime {

paint::PortPolygon* PolygonRecording::open(paint::Port& port) {
    port.openPolygon();
    open_ = std::make_unique<paint::PortPolygon>().release();
    return open_;
}

void PolygonRecording::close(paint::Port& port) {
    paint::PortPolygon recorded = port.closePolygon();
    if (open_)
        *open_ = std::move(recorded);
    open_ = nullptr;
}

void PolygonRecording::free(paint::PortPolygon* polygon) {
    if (open_ == polygon)
        open_ = nullptr;
    const std::unique_ptr<paint::PortPolygon> last(polygon);
}

} // namespace easel::runtime
