// The polygon that is being recorded on the current port.
#pragma once

#include "easel/paint/Port.h"

namespace easel::runtime {

// There is one recording at a time, as there is one current port. The polygons belong to whoever asked for
// them; one may be freed before its recording ends.
class PolygonRecording {
  public:
    // Starts to record on the port and gives the polygon, empty as yet, which the caller frees with `free`.
    paint::PortPolygon* open(paint::Port& port);
    // Ends the recording: the polygon has its lines.
    void close(paint::Port& port);
    // Null is allowed.
    void free(paint::PortPolygon* polygon);

  private:
    paint::PortPolygon* open_ = nullptr;
};

} // namespace easel::runtime
