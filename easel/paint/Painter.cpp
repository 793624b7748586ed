// A fill: outline to edges, edges to rows, rows to the shader of the paint source.
#include "easel/paint/Painter.h"

#include "easel/paint/coverage/OutlineEdges.h"
#include "easel/paint/gradient/FlatShader.h"
#include "easel/paint/gradient/PointShader.h"
#include "easel/paint/gradient/RadialShader.h"
#include "easel/paint/picture/StraightImageShader.h"
#include "easel/paint/picture/TurnedImageShader.h"

#include <cmath>
#include <limits>
#include <utility>

namespace easel::paint {

namespace {

using drawing::Affine;

drawing::RampColor colorOf(const drawing::ColorPaint& paint) {
    return drawing::colorOf({0, paint.color, drawing::validOpacity(paint.opacity)});
}

// A small shape is done before the processor notices which rows it needs; asking for all of them at once
// hides most of the wait. It takes real reads: prefetches are dropped where the address of a page is not at
// hand.
constexpr int kSmallWidth = 128;
constexpr int kSmallHeight = 128;

void fetch(const SurfaceView& surface, const PixelRect& area) {
    constexpr int kLine = 64 / sizeof(std::uint32_t); // pixels in a line of the cache
    for (int y = area.top; y < area.bottom; ++y) {
        const volatile std::uint32_t* row = surface.row(y);
        for (int x = area.left; x < area.right; x += kLine)
            static_cast<void>(row[x]);
        static_cast<void>(row[area.right - 1]);
    }
}

// 40 MB of them. Few shapes have more between the rows that a thread paints at a time.
constexpr std::size_t kMostEdges = 1'000'000;
// With those of one more curve. Growing to them leaves memory behind that nobody uses.
constexpr std::size_t kRoomForMostEdges = std::size_t{1} << 20;

// The largest parameter at the pixels of an area, and the smallest, which for circles may lie between the
// corners.
struct ParameterRange {
    double lowest;
    double highest;
};

template <class Map> ParameterRange cornersRange(const Map& map, const PixelRect& area) {
    ParameterRange range{std::numeric_limits<double>::infinity(), -std::numeric_limits<double>::infinity()};
    for (const int x : {area.left, area.right}) {
        for (const int y : {area.top, area.bottom}) {
            const double parameter = map.at({static_cast<double>(x), static_cast<double>(y)});
            range = {std::min(range.lowest, parameter), std::max(range.highest, parameter)};
        }
    }
    return range;
}

ParameterRange rangeOf(const LinearMap& map, const PixelRect& area) {
    return cornersRange(map, area);
}
ParameterRange rangeOf(const RadialMap& map, const PixelRect& area) {
    return {-map.radius / map.radiusStep, cornersRange(map, area).highest};
}

// Beyond it, doubles no longer tell pixels apart.
constexpr double kFarthestPixel = 1e12;

bool canBeComputed(const Affine& toImage) {
    const auto near = [](double value) { return std::abs(value) <= kFarthestPixel; };
    return near(toImage.a) && near(toImage.b) && near(toImage.c) && near(toImage.d) && near(toImage.e) &&
           near(toImage.f);
}

// Whether the map turns so little that no pixel of the area shows it.
bool isStraight(const Affine& toImage, const PixelRect& area) {
    constexpr double kUnseen = 1e-3;
    return std::abs(toImage.c) * area.bottom < kUnseen && std::abs(toImage.b) * area.right < kUnseen;
}

// Calls `use` with the shader for the image, or not at all if it has no extent.
template <class Use>
void withImageShader(const SurfaceView& surface, const PixelRect& area, const Affine& toSurface,
                     const Image& image, double opacity, const Use& use) {
    const Affine placed = toSurface * image.toDrawing;
    const Affine toImage = placed.inverse();
    if (!placed.invertible() || !canBeComputed(toImage))
        return;
    if (isStraight(toImage, area)) {
        StraightImageShader shader(surface, area, image, toImage, opacity);
        return use(shader);
    }
    TurnedImageShader shader(surface, area, image, toImage, opacity);
    use(shader);
}

} // namespace

// Calls `use` with the shader for the paint source, which serves the pixels of `area`.
template <class Use>
void Painter::withShader(const SurfaceView& surface, const PixelRect& area, const Affine& toSurface,
                         const PaintSource& source, double opacity, const Use& use) {
    opacity = drawing::validOpacity(opacity);
    if (const auto* color = std::get_if<drawing::ColorPaint>(&source)) {
        colorSpans_.layOut(colorOf(*color));
        FlatShader shader(surface, colorSpans_, opacity);
        return use(shader);
    }
    if (const auto* image = std::get_if<const Image*>(&source))
        return withImageShader(surface, area, toSurface, **image, opacity, use);
    const drawing::Gradient& gradient = *std::get<const drawing::Gradient*>(source);
    const ParameterMap map = parameterMapOf(gradient, toSurface);
    const auto laidOut = [&](const auto& known) {
        const ParameterRange range = rangeOf(known, area);
        return colorSpans_.layOut(gradient.ramp, gradient.spread, range.lowest, range.highest) ==
               ColorSpans::Outcome::Ready;
    };
    if (std::holds_alternative<FlatMap>(map)) {
        colorSpans_.layOut(drawing::colorOf(gradient.ramp.stops().back()));
        FlatShader shader(surface, colorSpans_, opacity);
        return use(shader);
    }
    if (const auto* line = std::get_if<LinearMap>(&map); line && laidOut(*line)) {
        LinearShader shader(surface, *line, colorSpans_, opacity, linear_);
        return use(shader);
    }
    if (const auto* circles = std::get_if<RadialMap>(&map);
        circles && RadialShader::handles(*circles) && laidOut(*circles)) {
        RadialShader shader(surface, *circles, colorSpans_, opacity, radialPieces_);
        return use(shader);
    }
    PointShader shader(surface, gradient, map, opacity);
    use(shader);
}

void Painter::sweep(const SurfaceView& surface, drawing::FillRule rule, const Affine& toSurface,
                    const PaintSource& source, double opacity) {
    const PixelRect area = rasteriser_.bounds();
    if (area.empty())
        return;
    if (area.width() <= kSmallWidth && area.height() <= kSmallHeight)
        fetch(surface, area);
    withShader(surface, area, toSurface, source, opacity,
               [&](CoverageSink& shader) { rasteriser_.sweep(rule, shader); });
}

// A shape of more edges than are held at a time is painted in halves, and those in halves if need be.
// `addSides` gets the number of edges after which it may stop and gives the factor for the opacity.
template <class AddSides>
void Painter::fillPart(const SurfaceView& surface, drawing::FillRule rule, const Affine& toSurface,
                       const PaintSource& source, double opacity, const AddSides& addSides) {
    const PixelRect& clip = surface.clip();
    const std::size_t mostEdges = clip.height() > 1 ? kMostEdges : std::numeric_limits<std::size_t>::max();
    rasteriser_.begin(clip);
    const double share = addSides(mostEdges);
    if (rasteriser_.edgeCount() <= mostEdges)
        return sweep(surface, rule, toSurface, source, opacity * share);
    const int middle = clip.top + clip.height() / 2;
    for (const auto& [top, bottom] : {std::pair{clip.top, middle}, std::pair{middle, clip.bottom}})
        fillPart(surface.clippedTo({.left = clip.left, .top = top, .right = clip.right, .bottom = bottom}),
                 rule, toSurface, source, opacity, addSides);
}

void Painter::fill(const SurfaceView& surface, const drawing::Path& shape, drawing::FillRule rule,
                   const Affine& toSurface, const PaintSource& source, double opacity) {
    if (shape.verbs().size() > kMostEdges)
        rasteriser_.reserve(kRoomForMostEdges);
    fillPart(surface, rule, toSurface, source, opacity, [&](std::size_t mostEdges) {
        addOutline(rasteriser_, shape, toSurface, mostEdges);
        return 1.0;
    });
}

void Painter::fill(const SurfaceView& surface, std::span<const drawing::Contour> polygons,
                   drawing::FillRule rule, const Affine& toSurface, const PaintSource& source,
                   double opacity) {
    fillPart(surface, rule, toSurface, source, opacity, [&](std::size_t) {
        for (const drawing::Contour& polygon : polygons)
            addPolygon(rasteriser_, polygon.points, toSurface);
        return 1.0;
    });
}

void Painter::fill(const SurfaceView& surface, const PolygonSource& polygons, drawing::FillRule rule,
                   const Affine& toSurface, const PaintSource& source, double opacity) {
    fillPart(surface, rule, toSurface, source, opacity, [&](std::size_t mostEdges) {
        return polygons([&](std::span<drawing::Point> corners) {
            addPolygon(rasteriser_, corners, toSurface);
            return rasteriser_.edgeCount() <= mostEdges;
        });
    });
}

void Painter::fillAll(const SurfaceView& surface, const Affine& toSurface, const PaintSource& source,
                      double opacity) {
    const PixelRect& clip = surface.clip();
    if (clip.empty())
        return;
    const PixelSpan whole[] = {{clip.left, clip.right}};
    withShader(surface, clip, toSurface, source, opacity, [&](CoverageSink& shader) {
        for (int y = clip.top; y < clip.bottom; ++y)
            shader.row(y, {whole, {}, nullptr});
    });
}

} // namespace easel::paint
