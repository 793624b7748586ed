#include "easel/svg/read/MarkerVertices.h"

#include "easel/drawing/Segments.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace easel::svg {

using drawing::Point;

namespace {

constexpr Point kNowhere{0, 0};

// One segment, with the directions in which it leaves its start and reaches its end.
struct Piece {
    Point leaving, reaching;
    Point end;
    bool endShows = true; // false inside an arc, which is one segment to the reader of the file
};

double degreesOf(Point direction) {
    return std::atan2(direction.y, direction.x) * 180 / std::numbers::pi;
}

double degreesBetween(Point coming, Point going) {
    if (coming == kNowhere || going == kNowhere)
        return degreesOf(coming == kNowhere ? going : coming);
    const double first = degreesOf(coming);
    return first + std::remainder(degreesOf(going) - first, 360) / 2;
}

Point firstWay(std::initializer_list<Point> ways) {
    const auto* const found = std::find_if(ways.begin(), ways.end(), [](Point p) { return p != kNowhere; });
    return found == ways.end() ? kNowhere : *found;
}

class VertexSink {
  public:
    explicit VertexSink(const std::vector<std::uint32_t>& insideArcs) : insideArcs_(insideArcs) {}

    void move(Point p) {
        endSubpath(false);
        start_ = p;
        begun_ = true;
        ++verb_;
    }
    void line(Point from, Point to) { add({to - from, to - from, to}); }
    void cubic(const drawing::CubicSegment& c) {
        add({firstWay({c.control1 - c.start, c.control2 - c.start, c.end - c.start}),
             firstWay({c.end - c.control2, c.end - c.control1, c.end - c.start}), c.end});
    }
    void close(Point from, Point to) {
        add({to - from, to - from, to});
        endSubpath(true);
        start_ = to;
    }

    std::vector<MarkerVertex> take() {
        endSubpath(false);
        if (vertices_.size() == 1)
            vertices_.push_back(vertices_.front());
        if (!vertices_.empty()) {
            vertices_.back().slot = MarkerVertex::Slot::End;
            vertices_.front().slot = MarkerVertex::Slot::Start;
        }
        return std::move(vertices_);
    }

  private:
    void add(Piece piece) {
        begun_ = true;
        piece.endShows = !std::binary_search(insideArcs_.begin(), insideArcs_.end(), verb_);
        pieces_.push_back(piece);
        ++verb_;
    }
    // Segments without length go the way of the one before, or else of the one after.
    void giveDirections() {
        Point way = kNowhere;
        for (Piece& piece : pieces_) {
            if (piece.leaving == kNowhere)
                piece.leaving = piece.reaching = way;
            way = piece.reaching;
        }
        std::for_each(pieces_.rbegin(), pieces_.rend(), [&way](Piece& piece) {
            if (piece.leaving == kNowhere)
                piece.leaving = piece.reaching = way;
            way = piece.leaving;
        });
    }
    void endSubpath(bool closed) {
        if (!begun_)
            return;
        giveDirections();
        const bool joins = closed && !pieces_.empty();
        const Point first = pieces_.empty() ? kNowhere : pieces_.front().leaving;
        vertices_.push_back({start_, degreesBetween(joins ? pieces_.back().reaching : kNowhere, first)});
        for (std::size_t i = 0; i < pieces_.size(); ++i) {
            const bool last = i + 1 == pieces_.size();
            const Point next = last ? (joins ? first : kNowhere) : pieces_[i + 1].leaving;
            if (pieces_[i].endShows)
                vertices_.push_back({pieces_[i].end, degreesBetween(pieces_[i].reaching, next)});
        }
        pieces_.clear();
        begun_ = false;
    }

    const std::vector<std::uint32_t>& insideArcs_; // numbers of verbs, ascending
    std::vector<MarkerVertex> vertices_;
    std::vector<Piece> pieces_;
    Point start_;
    std::uint32_t verb_ = 0;
    bool begun_ = false;
};

} // namespace

std::vector<MarkerVertex> markerVertices(const Shape& shape) {
    VertexSink sink(shape.insideArcs);
    walkSegments(shape.outline, sink);
    return sink.take();
}

} // namespace easel::svg
