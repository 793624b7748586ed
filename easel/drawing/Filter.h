// A filter as values: steps that make pictures of pictures, the first of them of what a group shows.
#pragma once

#include "easel/drawing/BlendMode.h"
#include "easel/drawing/Color.h"
#include "easel/drawing/Geometry.h"
#include "easel/drawing/SharedPtr.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <variant>
#include <vector>

namespace easel::drawing {

struct Object;

// What a step works on: what the group shows, its opacity in black, nothing, or what an earlier step made.
struct FilterInput {
    enum class Kind : std::uint8_t { Source, SourceAlpha, Nothing, Step };
    Kind kind = Kind::Source;
    std::size_t step = 0; // for Kind::Step
};

// What an effect takes for pixels beyond the edges of its input.
enum class EdgeMode : std::uint8_t { Duplicate, Wrap, None };

// Lengths and places of effects are in the units of the filter.
struct BlurEffect {
    Point deviation; // of the bell curve, each way; not below 0
    EdgeMode edge = EdgeMode::None;
};

struct OffsetEffect {
    Point by;
};

struct FloodEffect {
    Rgb16 color;
    double opacity = 1;
};

struct DropShadowEffect {
    Point deviation;
    Point by;
    FloodEffect color;
};

// Lays its inputs over each other, the first at the bottom.
struct MergeEffect {};

// The first input blended with the second, which lies below.
struct BlendEffect {
    BlendMode mode = BlendMode::Normal;
};

struct CompositeEffect {
    enum class Operator : std::uint8_t { Over, In, Out, Atop, Xor, Lighter, Arithmetic };
    Operator how = Operator::Over;
    std::array<double, 4> k{}; // for Arithmetic
};

// Rows for red, green, blue and alpha; columns for the same and 1.
struct ColorMatrixEffect {
    std::array<double, 20> matrix{};
};

struct TransferFunction {
    enum class Kind : std::uint8_t { Identity, Table, Discrete, Linear, Gamma };
    Kind kind = Kind::Identity;
    std::vector<double> table; // for Table and Discrete
    double slope = 1;          // for Linear
    double amplitude = 1;      // for Gamma, as the exponent
    double exponent = 1;
    double offset = 0; // for Linear and Gamma
};

struct TransferEffect {
    std::array<TransferFunction, 4> functions; // red, green, blue, alpha
};

struct ConvolveEffect {
    int columns = 3;
    int rows = 3;
    std::vector<double> kernel; // columns times rows
    double divisor = 1;         // not 0
    double bias = 0;
    int targetX = 1; // the cell of the kernel that lies on the pixel
    int targetY = 1;
    EdgeMode edge = EdgeMode::Duplicate;
    bool keepsAlpha = false;
    Point unit; // the distance of the kernel's cells; 0: a pixel
};

struct LightPlace {
    double x = 0, y = 0, z = 0;
};
// Angles in degrees.
struct DistantLight {
    double azimuth = 0;
    double elevation = 0;
};
struct PointLight {
    LightPlace place;
};
struct SpotLight {
    LightPlace place;
    LightPlace target;
    double focus = 1;
    double cone = 180; // the angle between its axis and its edge
};

// The alpha of the input taken for heights and lit.
struct LightingEffect {
    enum class Kind : std::uint8_t { Diffuse, Specular };
    Kind kind = Kind::Diffuse;
    double surfaceScale = 1;
    double constant = 1;
    double exponent = 1; // of specular light
    Rgb16 color{65535, 65535, 65535};
    std::variant<DistantLight, PointLight, SpotLight> light;
    Point unit; // the distance of the heights that slopes are taken from; 0: a pixel
};

// Moves the pixels of the first input by what two channels of the second say.
struct DisplacementEffect {
    enum class Channel : std::uint8_t { Red, Green, Blue, Alpha };
    double scale = 0;
    Channel x = Channel::Alpha;
    Channel y = Channel::Alpha;
};

struct MorphologyEffect {
    enum class Operator : std::uint8_t { Erode, Dilate };
    Operator how = Operator::Erode;
    Point radius;
};

// Repeats the input as far as the step that made it reaches.
struct TileEffect {};

struct TurbulenceEffect {
    enum class Kind : std::uint8_t { Turbulence, Noise };
    Kind kind = Kind::Turbulence;
    Point frequency;
    int octaves = 1;
    double seed = 0;
    bool stitches = false;
};

// Objects, back to front, in drawing coordinates. Their groups are theirs alone. Never null.
struct ImageEffect {
    std::shared_ptr<const std::vector<SharedPtr<const Object>>> objects;
};

using FilterEffect =
    std::variant<BlurEffect, OffsetEffect, FloodEffect, DropShadowEffect, MergeEffect, BlendEffect,
                 CompositeEffect, ColorMatrixEffect, TransferEffect, ConvolveEffect, LightingEffect,
                 DisplacementEffect, MorphologyEffect, TileEffect, TurbulenceEffect, ImageEffect>;

struct FilterStep {
    FilterEffect effect;
    std::vector<FilterInput> inputs; // as many as the effect takes
    Box region;                      // outside of it the step's picture is empty
    bool linearLight = true;         // whether it computes with colors in linear light
};

// The picture of the last step takes the place of what the group shows; without steps nothing shows.
struct Filter {
    std::vector<FilterStep> steps;
    Box region; // outside of it nothing shows
    Affine toDrawing;

    // The region in the drawing.
    Box bounds() const;
};

} // namespace easel::drawing
