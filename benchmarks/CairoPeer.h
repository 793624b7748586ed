// The same fills by Cairo, on memory of ours.
#pragma once

#include "easel/drawing/Gradient.h"
#include "easel/drawing/Path.h"
#include "easel/paint/pixels/Surface.h"

#include <cairo.h>

#include <memory>

namespace bench {

using CairoPattern = std::unique_ptr<cairo_pattern_t, decltype(&cairo_pattern_destroy)>;

// Padded gradients only.
CairoPattern patternOf(const easel::drawing::Gradient& gradient);

class CairoPeer {
  public:
    // The surface must outlive the peer.
    explicit CairoPeer(easel::paint::Surface& surface);

    void fillAll(cairo_pattern_t* pattern);
    // Polygons only.
    void fill(const easel::drawing::Path& polygon, cairo_pattern_t* pattern);

  private:
    std::unique_ptr<cairo_surface_t, decltype(&cairo_surface_destroy)> surface_;
    std::unique_ptr<cairo_t, decltype(&cairo_destroy)> cairo_;
};

} // namespace bench
