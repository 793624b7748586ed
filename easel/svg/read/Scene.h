// What all parts of the reader share while one file is read.
#pragma once

#include "easel/drawing/Group.h"
#include "easel/svg/read/Notes.h"
#include "easel/svg/read/PaintServers.h"
#include "easel/svg/style/ComputedStyle.h"
#include "easel/svg/text/ReadError.h"
#include "easel/svg/text/XmlTree.h"

#include <cstdint>
#include <filesystem>
#include <optional>
#include <vector>

namespace easel::svg {

struct ShapePicture;
class TextFonts;

// Where what is read comes from.
struct Surroundings {
    std::filesystem::path file; // empty: from none
    std::vector<const ShapePicture*>
        open; // the drawings in drawings that are being read, the outermost first
};

struct Scene {
    const XmlTree& tree;
    const Cascade& cascade;
    PaintServers& servers;
    Budget& budget;
    Notes& notes;
    const Surroundings& around;
    TextFonts& fonts;
};

// Where in the drawing an element is read.
struct Place {
    ComputedStyle style;
    LengthContext lengths;
    drawing::Affine toDrawing;
    drawing::GroupPtr group;
    std::uint32_t use = 0; // the use instance that is being read
};

// The style that the elements around hand down to one, wherever it is shown.
Place placeAround(const Scene& scene, pugi::xml_node element);

// The path in drawing coordinates, in its own memory unless somebody shares it. Nothing if a coordinate is
// beyond what is computed with.
std::optional<drawing::Path> placedPath(drawing::Path path, const drawing::Affine& toDrawing);

// Whether the number is one that can be computed with.
bool inRange(double value);

} // namespace easel::svg
