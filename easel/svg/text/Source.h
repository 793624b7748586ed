// What is kept of the file that a drawing came from, for writing it back.
#pragma once

#include "easel/drawing/Drawing.h"
#include "easel/svg/text/Encoding.h"
#include "easel/svg/text/PackedSpans.h"

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <set>
#include <string>
#include <vector>

namespace easel::svg {

// A stretch of the text.
struct Span {
    std::size_t begin = 0;
    std::size_t end = 0;

    bool empty() const { return begin == end; }
};

// A use instance: an element as one `use` element repeats it.
struct UseInstance {
    std::uint32_t parent = 0; // the use instance that the `use` element itself is part of; 0: none
    std::uint32_t useTag = 0; // where the start tags of the `use` element and of what it repeats begin
    std::uint32_t targetTag = 0;
};

// Marks the block of gradient definitions that is ours to rewrite.
inline constexpr const char* kOwnBlockAttribute = "data-easel";
inline constexpr const char* kOwnBlockValue = "gradients";

struct Source : drawing::DocumentSource {
    std::string bytes;          // as they were read, but unpacked
    std::string packed;         // as they were read, if they were compressed
    std::filesystem::path file; // that they were read from; empty: from none
    Encoding encoding = Encoding::Utf8;
    std::string decoded; // unless the bytes are UTF-8 themselves
    std::string prefix;  // of SVG element names, with its colon
    std::size_t rootTag = 0;
    Span ownBlock; // our block of gradients; empty: there is none
    drawing::Affine rootToDrawing;
    bool sheetsStateFill = false;
    bool sheetsStateStroke = false;
    PackedSpans objects; // the elements of every object that was read, in the drawing's order
    // Those of them that take their fill or stroke from a `use` element.
    std::set<drawing::ElementSpan> contextFills, contextStrokes;
    std::vector<UseInstance> useInstances; // number 1 is the first
    std::set<std::size_t> chosen;          // start tags of what is shown of `switch` elements

    const std::string& text() const { return encoding == Encoding::Utf8 ? bytes : decoded; }
};

} // namespace easel::svg
