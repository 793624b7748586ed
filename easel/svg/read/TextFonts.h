// What sets the text of a file: the fonts that it brings along, and those of the system.
#pragma once

#include "easel/svg/read/Notes.h"
#include "easel/svg/read/Scene.h"
#include "easel/svg/style/FontFace.h"
#include "easel/type/DrawnTypesetter.h"

#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace easel::svg {

class TextFonts {
  public:
    TextFonts(const XmlTree& tree, const Cascade& cascade, const Surroundings& around, Budget& budget,
              Notes& notes)
        : tree_(tree), cascade_(cascade), around_(around), budget_(budget), notes_(notes) {}

    // Made when the first text is met. Null if nothing can set text.
    type::Typesetter* typesetter();

  private:
    void make(type::Typesetter& system);
    // If none of its sources can be used, that is noted.
    void add(const FontFace& face, type::Typesetter& system);
    // False if there is no font that can be used.
    bool addReferred(const FontFace& face, std::string_view reference, type::Typesetter& system);
    bool addDrawn(const FontFace& face, std::optional<type::DrawnFont> font);
    std::string bytesOf(std::string_view reference);

    const XmlTree& tree_;
    const Cascade& cascade_;
    const Surroundings& around_;
    Budget& budget_;
    Notes& notes_;
    bool made_ = false;
    std::vector<type::DrawnFont> drawn_;
    std::vector<type::LoadedFace> loaded_;
    std::size_t bytesRead_ = 0;
    std::unique_ptr<type::DrawnTypesetter> own_;
};

} // namespace easel::svg
