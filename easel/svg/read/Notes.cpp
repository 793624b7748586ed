#include "easel/svg/read/Notes.h"

namespace easel::svg {

namespace {

// In the order of the enumeration.
constexpr std::array<std::string_view, kUnsupportedCount> kSentences = {
    "Some of the text is kept in the file but not shown.",
    "Videos and canvases are kept in the file but not shown.",
    "Pictures that are neither PNG, JPEG, GIF, WebP nor SVG are kept in the file but not shown.",
    "Pictures that are damaged are kept in the file but not shown.",
    "Pictures of more than 25 million pixels are kept in the file but not shown.",
    "Pictures are read from the folder of the drawing and those below it, and from nowhere else.",
    "Pictures in files that cannot be read are not shown.",
    "Fonts are read from the folder of the drawing and those below it, and from nowhere else.",
    "Fonts that are damaged or of unknown kinds are replaced by others.",
    "Content in other languages than SVG is kept in the file but not shown.",
    "Scripts are kept in the file but not run.",
    "Animations are kept in the file but not played.",
    "Filters of other kinds than those of SVG and CSS are kept in the file but not applied.",
    "Masks other than mask elements are kept in the file but not applied.",
    "Vector effects other than strokes of fixed width are kept in the file but not applied.",
    "Clip paths other than outlines are kept in the file but not applied.",
    "Style sheets outside the file are not read.",
    "Content outside the file is not read.",
    "References that lead back to themselves are kept in the file but not followed.",
    "Shapes with numbers out of range are kept in the file but not shown.",
    "Groups and use elements nested very deep are kept in the file but not shown as such.",
    "Gradients between colors in linear light are drawn between those of sRGB.",
};

} // namespace

void Notes::addElement(std::string_view svgName) {
    if (svgName.substr(0, 4) == "flow")
        add(Unsupported::Text);
    else if (svgName == "video" || svgName == "canvas")
        add(Unsupported::Video);
    else if (svgName == "foreignObject")
        add(Unsupported::Foreign);
    else if (svgName == "script")
        add(Unsupported::Script);
    else if (svgName == "set" || svgName.substr(0, 7) == "animate")
        add(Unsupported::Animation);
}

std::vector<std::string> Notes::sentences() const {
    std::vector<std::string> result;
    for (std::size_t i = 0; i < kUnsupportedCount; ++i)
        if (seen_[i])
            result.emplace_back(kSentences[i]);
    return result;
}

} // namespace easel::svg
