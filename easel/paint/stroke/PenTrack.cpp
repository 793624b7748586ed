// Flattening of outlines for the pen, and dashes.
#include "easel/paint/stroke/PenTrack.h"

#include "easel/drawing/Segments.h"

#include <cmath>
#include <numeric>
#include <utility>

namespace easel::paint {

using drawing::length;
using drawing::Point;

namespace {

// Points as near as this share of the tolerance are one: the direction from one to the other would be noise.
constexpr double kSamePoint = 0.01;

// Collects the segments of an outline into tracks.
class TrackSink {
  public:
    explicit TrackSink(double tolerance) : tolerance_(tolerance) {}

    void move(Point p) {
        finish();
        add(p, Turn::Corner);
    }
    void line(Point, Point to) {
        drawn_ = true;
        add(to, Turn::Corner);
    }
    void cubic(const drawing::CubicSegment& curve) {
        drawn_ = true;
        drawing::flattenCubic(curve, tolerance_, [&](Point, Point to) { add(to, Turn::Smooth); });
        // The curve's end is a corner like that of a line; where it goes on smoothly, any join is flat.
        if (!track_.points.empty())
            track_.points.back().turn = Turn::Corner;
    }
    void close(Point, Point start) {
        drawn_ = true;
        track_.closed = true;
        finish();
        // What follows without a move begins where the closed part did.
        add(start, Turn::Corner);
    }
    void finish() {
        PenTrack track = std::exchange(track_, {});
        if (!std::exchange(drawn_, false) || track.points.empty())
            return;
        while (track.closed && track.points.size() > 1 &&
               same(track.points.front().at, track.points.back().at))
            track.points.pop_back();
        if (track.points.size() == 1)
            track.closed = false;
        tracks.push_back(std::move(track));
    }

    std::vector<PenTrack> tracks;

  private:
    void add(Point p, Turn turn) {
        if (isFinite(p) && (track_.points.empty() || !same(track_.points.back().at, p)))
            track_.points.push_back({p, turn});
    }
    bool same(Point a, Point b) const { return length(a - b) <= kSamePoint * tolerance_; }

    double tolerance_;
    PenTrack track_;
    bool drawn_ = false;
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

std::vector<PenTrack> penTracks(const drawing::Path& outline, double tolerance) {
    TrackSink sink(tolerance);
    drawing::walkSegments(outline, sink);
    sink.finish();
    return std::move(sink.tracks);
}

std::vector<PenTrack> dashed(const std::vector<PenTrack>& tracks, const std::vector<double>& dashes,
                             double offset) {
    std::vector<PenTrack> all;
    for (const PenTrack& track : tracks)
        for (PenTrack& piece : Dasher(dashes, offset).cut(track))
            all.push_back(std::move(piece));
    return all;
}

double dashCount(const std::vector<PenTrack>& tracks, const std::vector<double>& dashes) {
    double sum = 0;
    for (const PenTrack& track : tracks)
        sum += lengthOf(track);
    const double whole = std::accumulate(dashes.begin(), dashes.end(), 0.0);
    return sum / whole * static_cast<double>(dashes.size()) / 2;
}

} // namespace easel::paint
