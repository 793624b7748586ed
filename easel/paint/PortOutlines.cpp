// The port's lines and polygons.
#include "easel/paint/Port.h"

#include <algorithm>
#include <utility>

namespace easel::paint {

namespace {

std::int64_t floorDivide(std::int64_t number, std::int64_t by) {
    const std::int64_t quotient = number / by;
    return number % by < 0 ? quotient - 1 : quotient;
}

std::int64_t ceilDivide(std::int64_t number, std::int64_t by) {
    return -floorDivide(-number, by);
}

// The pixels that a line of one pixel's width has in each of its rows. Runs from the upper end to the lower
// one, so a line is the same whichever way it is drawn.
class LineRows {
  public:
    LineRows(PixelPoint from, PixelPoint to)
        : start_(from.v <= to.v ? from : to), end_(from.v <= to.v ? to : from),
          across_(start_.h <= end_.h ? end_.h - start_.h : start_.h - end_.h), down_(end_.v - start_.v),
          sign_(start_.h <= end_.h ? 1 : -1) {}

    int top() const { return start_.v; }
    int bottom() const { return end_.v; }

    // The first and the last column of a row, in the order in which the line is walked.
    std::pair<int, int> columns(int row) const {
        const std::int64_t r = row - start_.v;
        if (down_ >= across_) {
            const int column =
                down_ == 0 ? start_.h
                           : at(floorDivide(2 * r * across_ + down_, 2 * static_cast<std::int64_t>(down_)));
            return {column, column};
        }
        if (down_ == 0)
            return {start_.h, end_.h};
        const std::int64_t twice = 2 * static_cast<std::int64_t>(down_);
        const std::int64_t first = std::max<std::int64_t>(0, ceilDivide((2 * r - 1) * across_, twice));
        const std::int64_t last =
            std::min<std::int64_t>(across_, ceilDivide((2 * r + 1) * across_, twice) - 1);
        return {at(first), at(last)};
    }

  private:
    int at(std::int64_t steps) const { return start_.h + sign_ * static_cast<int>(steps); }

    PixelPoint start_;
    PixelPoint end_;
    int across_;
    int down_;
    int sign_;
};

// The columns where a row's upper left pixel corners pass from outside a polygon to its inside and back.
std::vector<int> crossings(const PortPolygon& corners, int row) {
    std::vector<int> columns;
    for (std::size_t i = 0; i < corners.size(); ++i) {
        PixelPoint upper = corners[i];
        PixelPoint lower = corners[(i + 1) % corners.size()];
        if (upper.v > lower.v)
            std::swap(upper, lower);
        if (row < upper.v || row >= lower.v)
            continue;
        const std::int64_t run = static_cast<std::int64_t>(row - upper.v) * (lower.h - upper.h);
        columns.push_back(upper.h + static_cast<int>(ceilDivide(run, lower.v - upper.v)));
    }
    std::sort(columns.begin(), columns.end());
    return columns;
}

PixelRect boundsOf(const PortPolygon& corners) {
    PixelRect bounds{
        .left = corners[0].h, .top = corners[0].v, .right = corners[0].h, .bottom = corners[0].v};
    for (const PixelPoint corner : corners) {
        bounds.top = std::min(bounds.top, corner.v);
        bounds.left = std::min(bounds.left, corner.h);
        bounds.bottom = std::max(bounds.bottom, corner.v);
        bounds.right = std::max(bounds.right, corner.h);
    }
    return bounds;
}

} // namespace

void Port::lineTo(PixelPoint point) {
    if (recording_) {
        if (recorded_.empty())
            recorded_.push_back(state_.pen.location);
        recorded_.push_back(point);
    } else {
        drawLine(state_.pen.location, point);
    }
    state_.pen.location = point;
}

// The pen's nib is swept along the line. Every pixel is touched once, also where nibs overlap, since an
// inverting pen would undo itself.
void Port::drawLine(PixelPoint from, PixelPoint to) {
    const int nibWidth = scaled(state_.pen.size.h);
    const int nibHeight = scaled(state_.pen.size.v);
    if (nibWidth == 0 || nibHeight == 0)
        return;
    const LineRows line({imageH(from.h), imageV(from.v)}, {imageH(to.h), imageV(to.v)});
    const PixelRect clip = imageClip();
    const int bottom = std::min(line.bottom() + nibHeight, clip.bottom);
    for (int row = std::max(line.top(), clip.top); row < bottom; ++row) {
        const auto [a, b] = line.columns(std::max(row - nibHeight + 1, line.top()));
        const auto [c, d] = line.columns(std::min(row, line.bottom()));
        fillSpan(row, std::min({a, b, c, d}), std::max({a, b, c, d}) + nibWidth, clip, Ink::Pen);
    }
    PixelRect touched = boundsOf({from, to});
    touched.right += state_.pen.size.h;
    touched.bottom += state_.pen.size.v;
    addDamage(touched);
}

void Port::openPolygon() {
    recording_ = true;
    recorded_.clear();
}

PortPolygon Port::closePolygon() {
    recording_ = false;
    return std::exchange(recorded_, {});
}

void Port::paintPolygon(const PortPolygon& polygon) {
    if (polygon.empty())
        return;
    PortPolygon corners = polygon;
    for (PixelPoint& corner : corners)
        corner = {imageH(corner.h), imageV(corner.v)};
    const PixelRect clip = imageClip();
    const PixelRect area = boundsOf(corners).intersection(clip);
    for (int row = area.top; row < area.bottom; ++row) {
        const std::vector<int> columns = crossings(corners, row);
        for (std::size_t i = 0; i + 1 < columns.size(); i += 2)
            fillSpan(row, columns[i], columns[i + 1], clip, Ink::Pen);
    }
    addDamage(boundsOf(polygon));
}

void Port::framePolygon(const PortPolygon& polygon) {
    for (std::size_t i = 1; i < polygon.size(); ++i)
        drawLine(polygon[i - 1], polygon[i]);
}

} // namespace easel::paint
