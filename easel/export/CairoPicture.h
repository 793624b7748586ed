// Pictures as Cairo takes them.
#pragma once

#include "easel/drawing/Picture.h"

#include <map>
#include <memory>

using cairo_surface_t = struct _cairo_surface;

namespace easel::exports {

// Makes one surface of each picture, however often it is shown.
class CairoPictures {
  public:
    CairoPictures() = default;
    CairoPictures(const CairoPictures&) = delete;
    CairoPictures& operator=(const CairoPictures&) = delete;

    // Stays as long as this; null for a picture that is damaged or too large for Cairo.
    cairo_surface_t* surfaceOf(const std::shared_ptr<const drawing::Picture>& picture);

  private:
    struct Destroy {
        void operator()(cairo_surface_t* surface) const;
    };
    std::map<std::shared_ptr<const drawing::Picture>, std::unique_ptr<cairo_surface_t, Destroy>> surfaces_;
};

} // namespace easel::exports
