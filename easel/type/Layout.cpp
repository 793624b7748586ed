#include "easel/type/Layout.h"

#include "easel/type/Append.h"
#include "easel/type/Chunk.h"
#include "easel/type/PathMeasure.h"
#include "easel/type/SetText.h"

#include <algorithm>
#include <utility>

namespace easel::type {

using drawing::Affine;
using drawing::Box;
using drawing::Path;
using drawing::Point;

namespace {

// A cluster with the map that takes its line, with the pen at the origin, to the drawing. Those that are
// `onLine` stand on that of their chunk, `along` it and so far below it.
struct PlacedCluster {
    const SetCluster* set = nullptr;
    Affine fromLine;
    bool onLine = false;
    double along = 0;
    double down = 0;
};

class Layout {
  public:
    Layout(const Text& text, Typesetter& typesetter, const std::function<void(std::size_t)>& spend)
        : text_(text), typesetter_(typesetter), spend_(spend),
          turn_(text.direction == Direction::Vertical ? Affine::rotation(90) : Affine()) {
        for (const RunStyle& style : text.styles)
            metrics_.push_back(typesetter.metrics(*style.font));
    }

    void addAll();
    PlacedText take() { return std::move(placed_); }

  private:
    void addChunk(std::size_t begin, std::size_t end);
    std::vector<PlacedCluster> onLine(const Chunk& chunk, std::size_t begin);
    std::vector<PlacedCluster> onPath(const Chunk& chunk, const AlongPath& along);
    double anchorShift(double length, const Character& first) const;
    Affine turned(const SetCluster& cluster) const;
    Affine fromEms(const PlacedCluster& cluster) const;
    const RunStyle& styleOf(const SetCluster& cluster) const {
        return text_.styles[text_.characters[cluster.first].style];
    }

    using Run = std::vector<PlacedCluster>;
    void paint(Run clusters);
    void paintRun(const Run& run);
    void paintLetters(const Run& run, std::size_t paint);
    SetRun runOf(const PlacedCluster& cluster, const Affine& toText) const;
    double advanceInEms(const PlacedCluster& cluster) const;
    void paintDecoration(const Run& run, const Decoration& decoration);
    void addCell(const PlacedCluster& cluster);

    const Text& text_;
    Typesetter& typesetter_;
    const std::function<void(std::size_t)>& spend_;
    Affine turn_; // of the line against the page
    std::vector<FontMetrics> metrics_;
    std::vector<Point> shifts_; // of each character of the chunk, added up from its beginning
    Point pen_;
    PlacedText placed_;
};

void Layout::addAll() {
    const std::size_t count = text_.characters.size();
    std::vector<bool> begins(count + 1, false);
    for (std::size_t i = 0; i < count; ++i)
        begins[i] = i == 0 || text_.characters[i].x || text_.characters[i].y;
    for (const AlongPath& along : text_.alongPaths) {
        std::fill(begins.begin() + static_cast<std::ptrdiff_t>(along.begin),
                  begins.begin() + static_cast<std::ptrdiff_t>(along.end), false);
        begins[along.begin] = begins[along.end] = true;
    }
    for (std::size_t begin = 0; begin < count;) {
        std::size_t end = begin + 1;
        while (end < count && !begins[end])
            ++end;
        addChunk(begin, end);
        begin = end;
    }
}

void Layout::addChunk(std::size_t begin, std::size_t end) {
    shifts_.clear();
    Point shift;
    for (std::size_t i = begin; i < end; ++i) {
        shift = shift + Point{text_.characters[i].dx, text_.characters[i].dy};
        shifts_.push_back(shift);
    }
    const Chunk chunk = setChunk(text_, begin, end, metrics_, typesetter_);
    auto along = std::upper_bound(text_.alongPaths.begin(), text_.alongPaths.end(), begin,
                                  [](std::size_t place, const AlongPath& each) { return place < each.end; });
    while (along != text_.alongPaths.end() && along->begin > begin && along->begin < end)
        ++along;
    const bool isOnPath = along != text_.alongPaths.end() && along->begin <= begin;
    for (const SetCluster& cluster : chunk.clusters)
        spend_(1 + cluster.outline.points().size());
    paint(isOnPath ? onPath(chunk, *along) : onLine(chunk, begin));
}

// How far the anchor moves a chunk of that length along its line.
double Layout::anchorShift(double length, const Character& first) const {
    if (first.anchor == Anchor::Middle)
        return -length / 2;
    const bool atEnd = (first.anchor == Anchor::End) != text_.rightToLeft;
    return atEnd ? -length : 0;
}

// From the letters' own line to the page: upright ones in a vertical line stand as they are.
Affine Layout::turned(const SetCluster& cluster) const {
    const Affine rotation = Affine::rotation(text_.characters[cluster.first].rotate.value_or(0));
    return rotation * turn_;
}

std::vector<PlacedCluster> Layout::onLine(const Chunk& chunk, std::size_t begin) {
    const Character& first = text_.characters[begin];
    const Point origin{first.x.value_or(pen_.x), first.y.value_or(pen_.y)};
    const Point moved = shifts_.back();
    const Affine back = turn_.inverse();
    // The shift of the first letter moves the chunk as a whole.
    const double length = chunk.length + back.direction(moved - shifts_.front()).x;
    const double anchored = anchorShift(length, first);
    std::vector<PlacedCluster> placed;
    for (const SetCluster& cluster : chunk.clusters) {
        const Point shift = shifts_[cluster.first - begin];
        const Point onLine = back.direction(shift) + Point{cluster.along + anchored, cluster.across};
        const Point place = origin + turn_.direction(onLine);
        placed.push_back({&cluster, Affine::translation(place.x, place.y) * turned(cluster),
                          !text_.characters[cluster.first].rotate, onLine.x, onLine.y - cluster.across});
    }
    pen_ = origin + moved + turn_.direction({chunk.length + anchored, 0});
    return placed;
}

std::vector<PlacedCluster> Layout::onPath(const Chunk& chunk, const AlongPath& along) {
    const PathMeasure path(along.path);
    const double length = chunk.length + shifts_.back().x - shifts_.front().x;
    const double start = along.start + anchorShift(length, text_.characters[along.begin]);
    std::vector<PlacedCluster> placed;
    for (const SetCluster& cluster : chunk.clusters) {
        const Point shift = shifts_[cluster.first - along.begin];
        const double half = cluster.width / 2;
        // Letters stand on the path with their middle; those whose middle is not on it are not shown.
        if (const auto middle = path.at(start + cluster.along + shift.x + half))
            placed.push_back({&cluster,
                              *middle * Affine::translation(-half, cluster.across + shift.y) *
                                  Affine::rotation(text_.characters[cluster.first].rotate.value_or(0)),
                              false, 0, 0});
    }
    pen_ = path.end();
    return placed;
}

Affine Layout::fromEms(const PlacedCluster& cluster) const {
    const double size = styleOf(*cluster.set).size;
    const double stretched = size * cluster.set->stretch;
    if (cluster.set->upright)
        return cluster.fromLine * turn_.inverse() * Affine::scaling(size, stretched);
    return cluster.fromLine * Affine::scaling(stretched, size);
}

void Layout::paint(Run clusters) {
    std::stable_sort(clusters.begin(), clusters.end(), [](const PlacedCluster& a, const PlacedCluster& b) {
        return a.set->first < b.set->first;
    });
    const auto styleAt = [&](std::size_t i) { return text_.characters[clusters[i].set->first].style; };
    for (std::size_t begin = 0; begin < clusters.size();) {
        std::size_t end = begin + 1;
        while (end < clusters.size() && styleAt(end) == styleAt(begin))
            ++end;
        paintRun({clusters.begin() + static_cast<std::ptrdiff_t>(begin),
                  clusters.begin() + static_cast<std::ptrdiff_t>(end)});
        begin = end;
    }
}

void Layout::paintRun(const Run& run) {
    const RunStyle& style = styleOf(*run.front().set);
    for (const LineKind kind : {LineKind::Underline, LineKind::Overline})
        for (const Decoration& decoration : style.decorations)
            if (decoration.kind == kind)
                paintDecoration(run, decoration);
    paintLetters(run, style.paint);
    for (const Decoration& decoration : style.decorations)
        if (decoration.kind == LineKind::Strikethrough)
            paintDecoration(run, decoration);
    for (const PlacedCluster& cluster : run)
        addCell(cluster);
}

void Layout::paintLetters(const Run& run, std::size_t paint) {
    auto& outlines = placed_.outlines;
    if (outlines.empty() || outlines.back().paint != paint || !outlines.back().letters)
        outlines.push_back({paint, {}, true, {}});
    for (const PlacedCluster& cluster : run) {
        const Affine toText = fromEms(cluster);
        append(outlines.back().outline, cluster.set->outline, toText);
        outlines.back().text.add(runOf(cluster, toText), cluster.set->text, cluster.set->glyphs,
                                 {toText.e, toText.f}, advanceInEms(cluster));
    }
}

SetRun Layout::runOf(const PlacedCluster& cluster, const Affine& toText) const {
    return {cluster.set->face,
            styleOf(*cluster.set).font,
            {toText.a, toText.b, toText.c, toText.d, 0, 0},
            cluster.set->rightToLeft,
            0};
}

// Without spacing, and before it is stretched.
double Layout::advanceInEms(const PlacedCluster& cluster) const {
    const double whole = styleOf(*cluster.set).size * cluster.set->stretch;
    return whole > 0 ? cluster.set->width / whole : 0;
}

void Layout::paintDecoration(const Run& run, const Decoration& decoration) {
    const FontMetrics metrics = typesetter_.metrics(*decoration.font);
    double height = metrics.underline;
    double thickness = metrics.underlineThickness;
    if (decoration.kind == LineKind::Overline)
        height = metrics.ascent;
    if (decoration.kind == LineKind::Strikethrough) {
        height = metrics.strikethrough;
        thickness = metrics.strikethroughThickness;
    }
    const double middle = -decoration.rise - height * decoration.size;
    const double half = thickness * decoration.size / 2;
    Path path;
    for (std::size_t begin = 0; begin < run.size();) {
        // Letters side by side get one line.
        double left = 0;
        double right = run[begin].set->advance;
        std::size_t end = begin + 1;
        for (; end < run.size() && run[end].onLine && run[begin].onLine && run[end].down == run[begin].down;
             ++end) {
            const double from = run[end].along - run[begin].along;
            const double to = from + run[end].set->advance;
            const double near = decoration.size * 1e-6;
            if (std::abs(from - right) > near && std::abs(to - left) > near)
                break;
            left = std::min(left, from);
            right = std::max(right, to);
        }
        const double down = middle + styleOf(*run[begin].set).rise;
        append(path, drawing::rectanglePath({left, down - half, right, down + half}), run[begin].fromLine);
        begin = end;
    }
    placed_.outlines.push_back({decoration.paint, std::move(path), false, {}});
}

void Layout::addCell(const PlacedCluster& cluster) {
    const std::size_t style = text_.characters[cluster.set->first].style;
    const FontMetrics& metrics = metrics_[style];
    const double size = text_.styles[style].size;
    const double right = cluster.set->width;
    const Box cell = cluster.set->upright ? Box{0, -size / 2, right, size / 2}
                                          : Box{0, -metrics.ascent * size, right, -metrics.descent * size};
    for (const Point corner : {Point{cell.left, cell.top}, Point{cell.right, cell.top},
                               Point{cell.left, cell.bottom}, Point{cell.right, cell.bottom}})
        placed_.cells.add(cluster.fromLine(corner));
}

} // namespace

PlacedText layOut(const Text& text, Typesetter& typesetter, const std::function<void(std::size_t)>& spend) {
    Layout layout(text, typesetter, spend);
    layout.addAll();
    return layout.take();
}

} // namespace easel::type
