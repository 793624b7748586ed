// What a text element says, gathered from it and the elements in it: characters, their styles and their
// places.
#pragma once

#include "easel/svg/read/Scene.h"
#include "easel/svg/read/TextCase.h"
#include "easel/svg/read/TextLists.h"
#include "easel/svg/style/TextStyle.h"
#include "easel/type/Text.h"
#include "easel/type/Typesetter.h"

#include <cstddef>
#include <string>
#include <vector>

namespace easel::svg {

// How the characters of some elements are painted; `RunStyle::paint` is the index of one.
struct TextPaint {
    ComputedStyle style;
    LengthContext lengths;
    double opacity = 1; // of the elements inside the text that hold them
};

struct TextContent {
    type::Text text;
    std::vector<TextPaint> paints;
};

class TextContentReader {
  public:
    TextContentReader(const Scene& scene, type::Typesetter& typesetter)
        : scene_(scene), typesetter_(typesetter) {}

    // `place` is inside the text element: its style and units are the element's own.
    TextContent read(pugi::xml_node element, const StatedStyle& stated, const Place& place);

  private:
    // What holds inside one of the elements.
    struct Level {
        ComputedStyle style;
        LengthContext lengths;
        double opacity = 1;
        std::shared_ptr<const type::Font> font;
        std::string language;
        bool preserve = false; // blanks, as xml:space says
        double raised = 0;     // by baseline shifts
        double aligned = 0;    // by baselines
        std::size_t styleNumber = 0;
        std::vector<type::Decoration> decorations;
    };

    void setUp(Level& level, pugi::xml_node element, const StatedStyle& stated, const Level* outer);
    void align(Level& level, const StatedStyle& stated, const Level* outer) const;
    void addDecorations(Level& level, const StatedStyle& stated) const;
    std::size_t addPaint(const Level& level);
    void readInside(pugi::xml_node element, const StatedStyle& stated, const Level& level);
    void readChildren(pugi::xml_node element, const Level& level);
    void readChild(pugi::xml_node child, const Level& outer);
    void readSwitch(pugi::xml_node element, const Level& outer);
    void readSpan(pugi::xml_node element, const Level& outer);
    void readReferenced(pugi::xml_node element, const Level& level);
    void addAlongPath(pugi::xml_node element, const Level& level, std::size_t begin);
    void addStretched(pugi::xml_node element, const Level& level, std::size_t begin);
    void addText(std::string_view utf8, const Level& level);
    void addCharacter(char32_t character, const Level& level);
    // One more that is shown for the character before it.
    void addToLast(char32_t character);
    void addControls(std::u32string_view controls) { controls_ += controls; }
    void finish();

    const Scene& scene_;
    type::Typesetter& typesetter_;
    TextContent content_;
    TextLists lists_;
    std::u32string controls_; // that wait for the character behind them
    TextCase case_;
    bool afterBlank_ = true; // so that another one collapses into it
    std::size_t depth_ = 0;
};

} // namespace easel::svg
