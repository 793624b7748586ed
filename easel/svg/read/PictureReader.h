// The pictures that elements refer to.
#pragma once

#include "easel/drawing/Picture.h"
#include "easel/svg/read/Scene.h"

#include <memory>
#include <string_view>
#include <unordered_map>

namespace easel::svg {

class PictureReader {
  public:
    explicit PictureReader(const Scene& scene) : scene_(scene) {}

    // Null, which is noted, for what is not read. What was asked for before is the same picture again. The
    // text stays as long as the reader.
    std::shared_ptr<const drawing::Picture> picture(std::string_view reference);

  private:
    std::shared_ptr<const drawing::Picture> read(std::string_view reference);

    const Scene& scene_;
    std::unordered_map<std::string_view, std::shared_ptr<const drawing::Picture>> known_;
};

} // namespace easel::svg
