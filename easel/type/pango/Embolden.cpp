#include "easel/type/pango/Embolden.h"

#include <ft2build.h>
#include FT_OUTLINE_H

#include <cmath>
#include <limits>
#include <type_traits>
#include <utility>
#include <vector>

namespace easel::type {

using drawing::Path;
using drawing::Point;
using drawing::Verb;

namespace {

// In the whole units that FreeType counts in.
constexpr double kFineUnitsPerEm = 65536;
constexpr FT_Pos kStrength = static_cast<FT_Pos>(kFineUnitsPerEm / 24);

// Signed or not, as the version of FreeType has them.
using Tag = std::remove_pointer_t<decltype(FT_Outline::tags)>;
using End = std::remove_pointer_t<decltype(FT_Outline::contours)>;

// The outline as FreeType has it: the points of each contour once, and which of them are controls of curves.
struct Contours {
    std::vector<FT_Vector> points;
    std::vector<Tag> tags;
    std::vector<End> ends;
};

class ContourMaker {
  public:
    ContourMaker(const Path& path, double scale) : path_(path), scale_(scale) {}

    Contours make() {
        std::size_t at = 0;
        const auto points = path_.points();
        for (const Verb verb : path_.verbs()) {
            if (verb == Verb::Move || verb == Verb::Close)
                finish();
            if (verb == Verb::Cubic) {
                add(points[at++], FT_CURVE_TAG_CUBIC);
                add(points[at++], FT_CURVE_TAG_CUBIC);
            }
            if (verb != Verb::Close)
                add(points[at++], FT_CURVE_TAG_ON);
        }
        finish();
        return std::move(made_);
    }

  private:
    void add(Point p, Tag tag) {
        made_.points.push_back({std::lround(p.x * scale_), std::lround(p.y * scale_)});
        made_.tags.push_back(tag);
    }
    // Contours end before the point they began at.
    void finish() {
        const std::size_t count = made_.points.size();
        if (count == begin_)
            return;
        const FT_Vector first = made_.points[begin_];
        const FT_Vector last = made_.points.back();
        if (count > begin_ + 1 && first.x == last.x && first.y == last.y) {
            made_.points.pop_back();
            made_.tags.pop_back();
        }
        made_.ends.push_back(static_cast<End>(made_.points.size() - 1));
        begin_ = made_.points.size();
    }

    const Path& path_;
    double scale_;
    Contours made_;
    std::size_t begin_ = 0;
};

// The same verbs with the points where they are now.
Path moved(const Path& path, const Contours& contours, double scale) {
    Path result;
    std::size_t at = 0;
    std::size_t contour = 0;
    std::size_t begin = 0;
    const auto next = [&] {
        const auto end = static_cast<std::size_t>(contours.ends[contour]) + 1;
        const FT_Vector p = contours.points[at < end ? at : begin];
        ++at;
        return Point{static_cast<double>(p.x) / scale, static_cast<double>(p.y) / scale};
    };
    bool open = false;
    const auto finish = [&] {
        if (!std::exchange(open, false))
            return;
        begin = static_cast<std::size_t>(contours.ends[contour++]) + 1;
        at = begin;
    };
    for (const Verb verb : path.verbs()) {
        if (verb == Verb::Close) {
            result.close();
            finish();
            continue;
        }
        if (verb == Verb::Move)
            finish();
        open = true;
        const Point first = next();
        if (verb == Verb::Move) {
            result.moveTo(first);
        } else if (verb == Verb::Line) {
            result.lineTo(first);
        } else {
            const Point second = next();
            result.cubicTo(first, second, next());
        }
    }
    return result;
}

} // namespace

Path emboldened(const Path& outline, double unitsPerEm) {
    const double scale = kFineUnitsPerEm / unitsPerEm;
    Contours contours = ContourMaker(outline, scale).make();
    if (contours.points.empty() ||
        contours.points.size() > static_cast<std::size_t>(std::numeric_limits<short>::max()))
        return outline;
    FT_Outline made{};
    made.n_points = static_cast<End>(contours.points.size());
    made.n_contours = static_cast<End>(contours.ends.size());
    made.points = contours.points.data();
    made.tags = contours.tags.data();
    made.contours = contours.ends.data();
    FT_Outline_Embolden(&made, kStrength);
    return moved(outline, contours, scale);
}

} // namespace easel::type
