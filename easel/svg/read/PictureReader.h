// The pictures that elements refer to, in the file itself or in files beside it.
#pragma once

#include "easel/drawing/Picture.h"
#include "easel/svg/read/Scene.h"

#include <filesystem>
#include <memory>
#include <string>
#include <string_view>
#include <unordered_map>
#include <variant>

namespace easel::svg {

// A picture made of shapes, which is read for each place that shows it.
struct ShapePicture {
    std::string bytes;
    std::filesystem::path file; // that they are from; empty: from none
};

using PictureContent = std::variant<std::monostate, std::shared_ptr<const drawing::Picture>,
                                    std::shared_ptr<const ShapePicture>>;

class PictureReader {
  public:
    explicit PictureReader(const Scene& scene) : scene_(scene) {}

    // Nothing, which is noted, for what is not read. What was asked for before is the same picture again. The
    // text stays as long as the reader.
    PictureContent content(std::string_view reference);

  private:
    PictureContent read(std::string_view reference);
    PictureContent readBeside(std::string_view reference);
    PictureContent opened(std::string bytes, const std::filesystem::path& file);
    PictureContent refused(Unsupported what);

    const Scene& scene_;
    std::unordered_map<std::string_view, PictureContent> known_;
};

} // namespace easel::svg
