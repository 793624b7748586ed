#include "easel/export/CairoPath.h"

#include <algorithm>

namespace easel::exports {

using drawing::Point;

namespace {

// Cairo computes in fixed point and wraps around beyond some eight million units.
constexpr double kFarthest = 4e6;

class PathWriter {
  public:
    explicit PathWriter(cairo_t* cairo) : cairo_(cairo) {}

    void add(const drawing::Path& path) {
        auto next = path.points().begin();
        for (const drawing::Verb verb : path.verbs()) {
            switch (verb) {
            case drawing::Verb::Move:
                point(*next++, cairo_move_to);
                break;
            case drawing::Verb::Line:
                point(*next++, cairo_line_to);
                break;
            case drawing::Verb::Cubic:
                curve(next[0], next[1], next[2]);
                next += 3;
                break;
            case drawing::Verb::Close:
                cairo_close_path(cairo_);
                break;
            }
        }
    }

  private:
    static Point within(Point p) {
        return {std::clamp(p.x, -kFarthest, kFarthest), std::clamp(p.y, -kFarthest, kFarthest)};
    }
    void point(Point p, void (*use)(cairo_t*, double, double)) {
        if (isFinite(p))
            use(cairo_, within(p).x, within(p).y);
    }
    void curve(Point control1, Point control2, Point end) {
        if (!isFinite(control1) || !isFinite(control2) || !isFinite(end))
            return point(end, cairo_line_to);
        const Point a = within(control1);
        const Point b = within(control2);
        const Point c = within(end);
        cairo_curve_to(cairo_, a.x, a.y, b.x, b.y, c.x, c.y);
    }

    cairo_t* cairo_;
};

} // namespace

void appendPath(cairo_t* cairo, const drawing::Path& path) {
    PathWriter(cairo).add(path);
}

} // namespace easel::exports
