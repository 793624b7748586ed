// Keeps the pictures that were shown last decoded, as many as there is room for.
#pragma once

#include "easel/drawing/Picture.h"

#include <cstddef>
#include <list>
#include <memory>
#include <mutex>

namespace easel::pictures {

class RecentPixels {
  public:
    using Pixels = std::shared_ptr<const drawing::PicturePixels>;

    // At most so many pixels are kept, but always those used last.
    explicit RecentPixels(std::size_t most) : most_(most) {}

    // The ones of this process.
    static RecentPixels& shared();

    // Pixels that are used now, and may be known already.
    void keep(const Pixels& pixels);
    // Pixels that nobody will use again.
    void forget(const Pixels& pixels);

  private:
    std::size_t most_;
    std::mutex mutex_; // guards what follows
    std::size_t kept_ = 0;
    std::list<Pixels> recent_; // those used last come first
};

} // namespace easel::pictures
