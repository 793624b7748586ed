// Polygonal offsetting: the outline of a stroke is its track moved half a width to either side, with the
// joins and caps of SVG 2 ("Computing the shape of the stroke"). An open track gives one polygon, up one
// side, around the cap and down the other; a closed one gives a polygon on either side.
//
//     --------------------F---.         F and T lie half a width off the corner P, across the line before it
//                         :    \ join   and the line after. Outside the bend the join leads from F to T, as a
//     --------------------P . . T       miter, an arc or straight.
//                          \     \      .
//     -------------.        \     \     Inside the bend the side turns where its lines meet, or goes by way
//             inner \        \     \    of P where they are too short to.
//
// Each side is the sum of half-rectangles along the track's lines and of the joins between them, all turning
// the same way, so that no part of a stroke cancels out another, however sharply the track bends. The
// non-zero rule unites them.
#include "easel/paint/stroke/Stroker.h"

#include "easel/paint/stroke/PenTrack.h"

#include <algorithm>
#include <cmath>
#include <numbers>
#include <numeric>

namespace easel::paint {

using drawing::cross;
using drawing::dot;
using drawing::length;
using drawing::LineCap;
using drawing::LineJoin;
using drawing::Point;

namespace {

constexpr double kMostDashes = 200000;
constexpr double kMostArcSteps = 1000;
// Longer tracks are stroked in parts, so that memory does not grow with their length.
constexpr std::size_t kMostPoints = 10000;

Point quarterTurn(Point p) {
    return {-p.y, p.x};
}

// Draws one side of tracks after the other, the side towards which the quarter turn points.
class SidePen {
  public:
    SidePen(const drawing::Stroke& stroke, double tolerance)
        : stroke_(stroke), half_(stroke.width / 2),
          arcStep_(2 * std::acos(std::clamp(1 - tolerance / half_, 0.0, 1.0))) {}

    void join(Point at, Point before, Point after, double lengthBefore, double lengthAfter, Turn turn) {
        const double bend = cross(before, after);
        const double straight = dot(before, after);
        const Point from = at + quarterTurn(before) * half_;
        const Point to = at + quarterTurn(after) * half_;
        if (bend > 0)
            return inner(at, from, to, before, after, std::min(lengthBefore, lengthAfter));
        if (bend == 0 && straight > 0)
            return put(to);
        if (turn == Turn::Smooth || stroke_.join == LineJoin::Round)
            return arc(at, quarterTurn(before) * half_,
                       std::atan2(bend, straight) - (bend == 0 ? 2 * std::numbers::pi : 0));
        put(from);
        // The miter's length over the stroke's width is 1 / sin(half the inner angle), whose square is 2 / (1
        // + cos).
        if (stroke_.join == LineJoin::Miter && 2 <= stroke_.miterLimit * stroke_.miterLimit * (1 + straight))
            put(at + (quarterTurn(before) + quarterTurn(after)) * (half_ / (1 + straight)));
        put(to);
    }
    // The same where the track turns straight back and the other side already shows the join.
    void turnBack(Point at, Point before) {
        put(at + quarterTurn(before) * half_);
        put(at);
        put(at - quarterTurn(before) * half_);
    }
    // From this side to the other around the end that `outwards` (a unit vector) points away from.
    void cap(Point at, Point outwards) { end(at, outwards, stroke_.cap); }
    // The same where the track goes on.
    void cut(Point at, Point outwards) { end(at, outwards, LineCap::Butt); }

    std::span<Point> points() { return points_; }
    void clear() { points_.clear(); }

  private:
    void put(Point p) { points_.push_back(p); }

    void end(Point at, Point outwards, LineCap cap) {
        const Point side = quarterTurn(outwards) * half_;
        const Point reach = outwards * half_;
        if (cap == LineCap::Round)
            return arc(at, side, -std::numbers::pi);
        if (cap == LineCap::Square) {
            put(at + side + reach);
            put(at - side + reach);
            return;
        }
        put(at + side);
        put(at - side);
    }
    void inner(Point at, Point from, Point to, Point before, Point after, double shorter) {
        const double straight = dot(before, after);
        // Where the sides of both lines meet, if they reach that far.
        const double back = half_ * std::sqrt(std::max(0.0, (1 - straight) / (1 + straight)));
        if (straight > -1 && back <= shorter) {
            put(at + (quarterTurn(before) + quarterTurn(after)) * (half_ / (1 + straight)));
            return;
        }
        put(from);
        put(at);
        put(to);
    }
    void arc(Point centre, Point radius, double angle) {
        const double steps = std::clamp(std::ceil(std::abs(angle) / arcStep_), 1.0, kMostArcSteps);
        put(centre + radius);
        for (double i = 1; i <= steps; ++i) {
            const double turn = angle * i / steps;
            const Point sideways = quarterTurn(radius);
            put(centre + radius * std::cos(turn) + sideways * std::sin(turn));
        }
    }

    const drawing::Stroke& stroke_;
    double half_;
    double arcStep_;
    std::vector<Point> points_;
};

struct Line {
    Point direction;
    double length;
};

// The lines of a track; a closed one has one more than an open one, back to its first point.
std::vector<Line> linesOf(const PenTrack& track) {
    const std::size_t count = track.points.size();
    std::vector<Line> lines;
    lines.reserve(count);
    for (std::size_t i = 0; i + 1 < count + (track.closed ? 1 : 0); ++i) {
        const Point along = track.points[(i + 1) % count].at - track.points[i].at;
        const double reach = length(along);
        lines.push_back({along * (1 / reach), reach});
    }
    return lines;
}

// The joins at points `first` to `last` going forwards, seen from one side.
void forwards(SidePen& pen, const PenTrack& track, const std::vector<Line>& lines, std::size_t first,
              std::size_t last) {
    for (std::size_t i = first; i < last; ++i) {
        const Line& before = lines[(i + lines.size() - 1) % lines.size()];
        const Line& after = lines[i];
        pen.join(track.points[i].at, before.direction, after.direction, before.length, after.length,
                 track.points[i].turn);
    }
}

// The same going back, which shows the other side.
void backwards(SidePen& pen, const PenTrack& track, const std::vector<Line>& lines, std::size_t first,
               std::size_t last) {
    for (std::size_t i = last; i-- > first;) {
        const Line& before = lines[i];
        const Line& after = lines[(i + lines.size() - 1) % lines.size()];
        if (before.direction == after.direction * -1) {
            pen.turnBack(track.points[i].at, after.direction);
            continue;
        }
        pen.join(track.points[i].at, before.direction * -1, after.direction * -1, before.length, after.length,
                 track.points[i].turn);
    }
}

// Hands over what the pen drew; false if no more is wanted.
bool give(SidePen& pen, const StrokeReceiver& receiver) {
    const bool wanted = receiver(pen.points());
    pen.clear();
    return wanted;
}

bool strokeDot(SidePen& pen, const PenTrack& track, LineCap cap, const StrokeReceiver& receiver) {
    if (cap == LineCap::Butt)
        return true;
    pen.cap(track.points.front().at, track.direction);
    pen.cap(track.points.front().at, track.direction * -1);
    return give(pen, receiver);
}

bool strokeTrack(SidePen& pen, const PenTrack& track, const StrokeReceiver& receiver) {
    const std::vector<Line> lines = linesOf(track);
    const std::size_t count = track.points.size();
    if (track.closed) {
        forwards(pen, track, lines, 0, count);
        if (!give(pen, receiver))
            return false;
        backwards(pen, track, lines, 0, count);
        return give(pen, receiver);
    }
    const auto end = [&](bool goesOn, Point at, Point outwards) {
        goesOn ? pen.cut(at, outwards) : pen.cap(at, outwards);
    };
    forwards(pen, track, lines, 1, count - 1);
    end(track.goesOn, track.points.back().at, lines.back().direction);
    backwards(pen, track, lines, 1, count - 1);
    end(track.comesFrom, track.points.front().at, lines.front().direction * -1);
    return give(pen, receiver);
}

double shareUnderDashes(const std::vector<double>& dashes) {
    double drawn = 0;
    for (std::size_t i = 0; i < dashes.size(); i += 2)
        drawn += dashes[i];
    return drawn / std::accumulate(dashes.begin(), dashes.end(), 0.0);
}

} // namespace

double strokePolygons(const drawing::Path& outline, const drawing::Stroke& stroke, double tolerance,
                      const StrokeReceiver& receiver) {
    if (!(stroke.width > 0) || !std::isfinite(stroke.width) || !(tolerance > 0))
        return 1;
    SidePen pen(stroke, tolerance);
    const auto draw = [&](const PenTrack& track) {
        return track.points.size() == 1 ? strokeDot(pen, track, stroke.cap, receiver)
                                        : strokeTrack(pen, track, receiver);
    };
    if (stroke.dashes.empty()) {
        penTracks(outline, tolerance, kMostPoints, draw);
        return 1;
    }
    const std::vector<PenTrack> tracks = penTracks(outline, tolerance);
    if (dashCount(tracks, stroke.dashes) > kMostDashes) {
        static_cast<void>(std::all_of(tracks.begin(), tracks.end(), draw));
        return shareUnderDashes(stroke.dashes);
    }
    static_cast<void>(std::all_of(tracks.begin(), tracks.end(), [&](const PenTrack& track) {
        const std::vector<PenTrack> dashes = dashed(track, stroke.dashes, stroke.dashOffset);
        return std::all_of(dashes.begin(), dashes.end(), draw);
    }));
    return 1;
}

} // namespace easel::paint
