// Reads stops off what is drawn, and says how the mouse takes hold of them.
#include "easel/runtime/StopRamp.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <limits>

namespace easel::runtime {

namespace {

// How far from a stop a press still takes hold of it.
constexpr int kStopReach = 10;
// A press is a drag when the mouse has gone further than a few pixels; this is more than any program asks
// for.
constexpr int kSureDrag = 8;
// Below every item of a dialog.
constexpr int kBelowAll = 10000;
// A gradient that is shown has at least so many stops.
constexpr std::size_t kFewestShown = 2;
// Stops that were added to fill the ramp's ends: one at each.
constexpr std::size_t kMostAdded = 2;

int pixelOf(const ShownStop& stop) {
    return static_cast<int>(stop.at);
}

std::vector<ShownStop> stopsOf(const CGradientData& record) {
    const double start = record.Start().h;
    const double length = record.End().h - start;
    std::vector<ShownStop> stops;
    for (const CGradientColor& each : record.ColorList()) {
        const RGBColor color = each.ColorRGB();
        stops.push_back(
            {start + length * each.Percent(), each.Percent(), {color.red, color.green, color.blue}});
    }
    return stops;
}

// How many of the stops come before the one that the first mark stands for.
std::size_t firstMarked(const std::vector<ShownStop>& stops, const std::vector<paint::PixelPoint>& marks) {
    std::size_t best = 0;
    long least = std::numeric_limits<long>::max();
    for (std::size_t first = 0; first + marks.size() <= stops.size(); ++first) {
        long off = 0;
        for (std::size_t i = 0; i < marks.size(); ++i)
            off += std::abs(pixelOf(stops[first + i]) - marks[i].h);
        if (off < least) {
            least = off;
            best = first;
        }
    }
    return best;
}

void sortByPlace(std::vector<ShownStop>& stops) {
    std::stable_sort(stops.begin(), stops.end(),
                     [](const ShownStop& a, const ShownStop& b) { return a.position < b.position; });
}

// The stop that a press there takes hold of, if it is near enough; the number of stops otherwise.
std::size_t takenAt(const std::vector<ShownStop>& stops, int h) {
    const auto nearest =
        std::min_element(stops.begin(), stops.end(), [h](const ShownStop& a, const ShownStop& b) {
            return std::abs(a.at - h) < std::abs(b.at - h);
        });
    const bool within = nearest != stops.end() && std::abs(nearest->at - h) < kStopReach;
    return static_cast<std::size_t>((within ? nearest : stops.end()) - stops.begin());
}

} // namespace

std::optional<StopRamp> StopRamp::in(const DialogItem& item) {
    const ItemContent& content = item.content;
    if (!content.gradient || content.marks.empty() || !content.filledMark)
        return std::nullopt;
    const CGradientData& record = content.gradient->record;
    std::vector<ShownStop> all = stopsOf(record);
    if (all.size() < content.marks.size() || all.size() > content.marks.size() + kMostAdded)
        return std::nullopt;
    const auto first = all.begin() + static_cast<std::ptrdiff_t>(firstMarked(all, content.marks));
    StopRamp ramp;
    ramp.stops_.assign(first, first + static_cast<std::ptrdiff_t>(content.marks.size()));
    sortByPlace(ramp.stops_);
    ramp.start_ = record.Start().h;
    ramp.end_ = record.End().h;
    ramp.markTop_ = content.filledMark->v;
    const auto active =
        std::min_element(ramp.stops_.begin(), ramp.stops_.end(), [&](const ShownStop& a, const ShownStop& b) {
            return std::abs(pixelOf(a) - content.filledMark->h) <
                   std::abs(pixelOf(b) - content.filledMark->h);
        });
    ramp.active_ = static_cast<std::size_t>(active - ramp.stops_.begin());
    return ramp;
}

paint::PixelPoint StopRamp::markOf(std::size_t stop) const {
    return {pixelOf(stops_[stop]), markTop_};
}

// A position passes through single precision, so that a stop may lie a little before the pixel that was
// meant.
int StopRamp::placeOf(std::size_t stop) const {
    return static_cast<int>(std::lround(stops_[stop].at));
}

int StopRamp::left() const {
    return static_cast<int>(std::ceil(start_));
}

int StopRamp::right() const {
    return static_cast<int>(std::floor(end_));
}

int StopRamp::pixelAt(double position) const {
    return static_cast<int>(std::lround(start_ + (end_ - start_) * std::clamp(position, 0.0, 1.0)));
}

std::optional<paint::PixelPoint> StopRamp::hold(const std::vector<ShownStop>& stops, std::size_t stop) const {
    const auto middle = static_cast<int>(std::lround(stops[stop].at));
    for (int away = 0; away < kStopReach; ++away)
        for (const int h : {middle - away, middle + away})
            if (takenAt(stops, h) == stop)
                return paint::PixelPoint{h, markTop_};
    return std::nullopt;
}

std::optional<MouseGesture> StopRamp::choose(std::size_t stop) const {
    const auto press = hold(stops_, stop);
    return press ? std::optional(MouseGesture{*press, {}}) : std::nullopt;
}

std::optional<MouseGesture> StopRamp::chooseBeside(int direction) const {
    const auto count = static_cast<int>(stops_.size());
    for (int stop = static_cast<int>(active_) + direction; stop >= 0 && stop < count; stop += direction)
        if (auto gesture = choose(static_cast<std::size_t>(stop)))
            return gesture;
    return std::nullopt;
}

// Whether the stop, moved there, is the first of those that lie there.
bool StopRamp::canStay(std::size_t stop, int at) const {
    std::vector<ShownStop> moved = stops_;
    moved[stop].at = at;
    moved[stop].position = (at - start_) / (end_ - start_);
    const auto before =
        static_cast<std::size_t>(std::count_if(moved.begin(), moved.end(), [&](const ShownStop& other) {
            return other.position < moved[stop].position ||
                   (other.position == moved[stop].position && &other < &moved[stop]);
        }));
    sortByPlace(moved);
    return hold(moved, before).has_value();
}

std::optional<MouseGesture> StopRamp::move(std::size_t stop, int to, int direction) const {
    const auto press = hold(stops_, stop);
    if (!press)
        return std::nullopt;
    for (int at = std::clamp(to, left(), right()); at >= left() && at <= right(); at += direction)
        if (canStay(stop, at))
            // Straight up first: the mouse then drags, however near its goal is.
            return MouseGesture{*press, {{press->h, press->v - kSureDrag}, {at, press->v}}};
    return std::nullopt;
}

std::optional<MouseGesture> StopRamp::add() const {
    std::vector<double> places{start_};
    for (const ShownStop& stop : stops_)
        places.push_back(stop.at);
    places.push_back(end_);
    std::size_t gap = active_ + 1;
    const auto width = [&](std::size_t of) { return places[of + 1] - places[of]; };
    const auto isWideEnough = [&](std::size_t of) { return width(of) / 2 >= kStopReach + 1; };
    if (!isWideEnough(gap))
        for (std::size_t other = 0; other + 1 < places.size(); ++other)
            if (width(other) > width(gap))
                gap = other;
    if (!isWideEnough(gap))
        return std::nullopt;
    return MouseGesture{{static_cast<int>((places[gap] + places[gap + 1]) / 2), markTop_}, {}};
}

std::optional<MouseGesture> StopRamp::remove(std::size_t stop) const {
    const auto press = hold(stops_, stop);
    if (!press || stops_.size() <= kFewestShown)
        return std::nullopt;
    return MouseGesture{*press, {{press->h, press->v + kBelowAll}}};
}

} // namespace easel::runtime
