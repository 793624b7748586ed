// Flattening of outlines for the pen, and dashes.
#include "easel/paint/stroke/PenTrack.h"

#include "easel/drawing/Segments.h"

#include <cmath>
#include <limits>
#include <numeric>
#include <optional>
#include <utility>

namespace easel::paint {

using drawing::length;
using drawing::Point;

namespace {

// Points as near as this share of the tolerance are one: the direction from one to the other would be noise.
constexpr double kSamePoint = 0.01;

// Which subpaths end with a close, in their order.
std::vector<bool> closings(const drawing::Path& outline) {
    std::vector<bool> closed;
    for (const drawing::Verb verb : outline.verbs())
        if (verb == drawing::Verb::Move || verb == drawing::Verb::Close)
            closed.push_back(verb == drawing::Verb::Close);
    closed.push_back(false);
    return closed;
}

// Collects the segments of an outline into tracks.
class TrackSink {
  public:
    TrackSink(const drawing::Path& outline, double tolerance, std::size_t mostPoints,
              const TrackReceiver& receiver)
        : outline_(outline), tolerance_(tolerance), mostPoints_(mostPoints), receiver_(receiver) {}

    void move(Point p) {
        finish(false);
        add(p, Turn::Corner);
    }
    void line(Point, Point to) {
        drawn_ = true;
        add(to, Turn::Corner);
    }
    void cubic(const drawing::CubicSegment& curve) {
        drawn_ = true;
        if (wanted_)
            drawing::flattenCubic(curve, tolerance_, [&](Point, Point to) { add(to, Turn::Smooth); });
        // The curve's end is a corner like that of a line; where it goes on smoothly, any join is flat.
        if (!track_.points.empty())
            track_.points.back().turn = Turn::Corner;
    }
    void close(Point, Point start) {
        drawn_ = true;
        finish(true);
        // What follows without a move begins where the closed part did.
        add(start, Turn::Corner);
    }
    void finish(bool closed) {
        if (std::exchange(drawn_, false) && !track_.points.empty()) {
            if (first_)
                endOfParts(closed);
            else
                endOfWhole(closed);
            give();
        }
        ++subpath_;
        first_.reset();
        track_ = {};
    }

  private:
    // The first two points of a subpath that comes in parts.
    struct Beginning {
        TrackPoint point;
        Point next;
    };

    void add(Point p, Turn turn) {
        if (!wanted_ || !isFinite(p) || (!track_.points.empty() && same(track_.points.back().at, p)))
            return;
        track_.points.push_back({p, turn});
        if (track_.points.size() > mostPoints_)
            cut();
    }
    void cut() {
        const TrackPoint last = track_.points.back();
        const Point before = track_.points[track_.points.size() - 2].at;
        const Point middle = (before + last.at) * 0.5;
        if (same(before, middle))
            return;
        if (!first_) {
            first_ = {track_.points.front(), track_.points[1].at};
            if (closings_.empty())
                closings_ = closings(outline_);
            track_.comesFrom = closings_[subpath_];
        }
        track_.points.back() = {middle, Turn::Smooth};
        track_.goesOn = true;
        give();
        track_ = {};
        track_.comesFrom = true;
        track_.points = {{middle, Turn::Smooth}, last};
    }
    void endOfWhole(bool closed) {
        track_.closed = closed;
        while (track_.closed && track_.points.size() > 1 &&
               same(track_.points.front().at, track_.points.back().at))
            track_.points.pop_back();
        if (track_.points.size() == 1)
            track_.closed = false;
    }
    // The last part of a closed subpath goes around the corner where the first one began.
    void endOfParts(bool closed) {
        if (!closed)
            return;
        if (same(track_.points.back().at, first_->point.at))
            track_.points.back() = first_->point;
        else
            track_.points.push_back(first_->point);
        track_.points.push_back({(first_->point.at + first_->next) * 0.5, Turn::Smooth});
        track_.goesOn = true;
    }
    void give() { wanted_ = wanted_ && receiver_(track_); }
    bool same(Point a, Point b) const { return length(a - b) <= kSamePoint * tolerance_; }

    const drawing::Path& outline_;
    double tolerance_;
    std::size_t mostPoints_;
    const TrackReceiver& receiver_;
    bool wanted_ = true;
    PenTrack track_;
    bool drawn_ = false;
    std::size_t subpath_ = 0;
    std::optional<Beginning> first_;
    std::vector<bool> closings_; // known once a subpath is cut
};

// Goes through a pattern of dashes and gaps along a track.
class Dasher {
  public:
    Dasher(const std::vector<double>& dashes, double offset) : dashes_(dashes) {
        const double whole = std::accumulate(dashes.begin(), dashes.end(), 0.0);
        offset = std::fmod(offset, whole);
        if (offset < 0)
            offset += whole;
        while (index_ + 1 < dashes_.size() &&
               (offset > dashes_[index_] || (offset == dashes_[index_] && offset > 0)))
            offset -= dashes_[index_++];
        left_ = std::max(0.0, dashes_[index_] - offset);
    }

    std::vector<PenTrack> cut(const PenTrack& track) {
        const bool beganInDash = inDash();
        const std::size_t count = track.points.size();
        if (inDash())
            begin(track.points.front());
        for (std::size_t i = 0; i + 1 < count + (track.closed ? 1 : 0); ++i)
            segment(track.points[i].at, track.points[(i + 1) % count]);
        const bool endsInDash = !piece_.points.empty();
        end();
        if (track.closed && beganInDash && endsInDash)
            joinEnds(track);
        return std::move(pieces_);
    }

  private:
    bool inDash() const { return index_ % 2 == 0; }

    void segment(Point from, const TrackPoint& to) {
        const double whole = length(to.at - from);
        const Point along = (to.at - from) * (1 / whole);
        double done = 0;
        while (whole - done > left_) {
            done += left_;
            const Point cutAt = from + along * done;
            if (inDash()) {
                add({cutAt, Turn::Corner}, along);
                end();
            }
            next();
            if (inDash())
                begin({cutAt, Turn::Corner});
        }
        left_ -= whole - done;
        if (inDash())
            add(to, along);
    }
    void next() {
        index_ = (index_ + 1) % dashes_.size();
        left_ = dashes_[index_];
    }
    void begin(const TrackPoint& point) { piece_.points.push_back(point); }
    void add(const TrackPoint& point, Point along) {
        if (piece_.points.back().at != point.at)
            piece_.points.push_back(point);
        else
            piece_.direction = along;
    }
    void end() {
        if (!piece_.points.empty())
            pieces_.push_back(std::exchange(piece_, {}));
    }
    // The last piece ends where the first begins.
    void joinEnds(const PenTrack& track) {
        if (pieces_.size() == 1) {
            // One dash all the way around.
            pieces_.front() = track;
            return;
        }
        PenTrack last = std::move(pieces_.back());
        pieces_.pop_back();
        std::vector<TrackPoint>& first = pieces_.front().points;
        last.points.back().turn = track.points.front().turn;
        last.points.insert(last.points.end(), first.begin() + 1, first.end());
        pieces_.front() = std::move(last);
    }

    const std::vector<double>& dashes_;
    std::size_t index_ = 0;
    double left_ = 0;
    PenTrack piece_;
    std::vector<PenTrack> pieces_;
};

double lengthOf(const PenTrack& track) {
    double sum = 0;
    for (std::size_t i = 1; i < track.points.size(); ++i)
        sum += length(track.points[i].at - track.points[i - 1].at);
    if (track.closed)
        sum += length(track.points.front().at - track.points.back().at);
    return sum;
}

} // namespace

void penTracks(const drawing::Path& outline, double tolerance, std::size_t mostPoints,
               const TrackReceiver& receiver) {
    TrackSink sink(outline, tolerance, mostPoints, receiver);
    drawing::walkSegments(outline, sink);
    sink.finish(false);
}

std::vector<PenTrack> penTracks(const drawing::Path& outline, double tolerance) {
    std::vector<PenTrack> tracks;
    penTracks(outline, tolerance, std::numeric_limits<std::size_t>::max(), [&](const PenTrack& track) {
        tracks.push_back(track);
        return true;
    });
    return tracks;
}

std::vector<PenTrack> dashed(const PenTrack& track, const std::vector<double>& dashes, double offset) {
    return Dasher(dashes, offset).cut(track);
}

double dashCount(const std::vector<PenTrack>& tracks, const std::vector<double>& dashes) {
    double sum = 0;
    for (const PenTrack& track : tracks)
        sum += lengthOf(track);
    const double whole = std::accumulate(dashes.begin(), dashes.end(), 0.0);
    return sum / whole * static_cast<double>(dashes.size()) / 2;
}

} // namespace easel::paint
