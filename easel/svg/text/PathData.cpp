#include "easel/svg/text/PathData.h"

#include "easel/svg/text/Arc.h"
#include "easel/svg/text/Scanner.h"

#include <algorithm>
#include <array>
#include <optional>

namespace easel::svg {

using drawing::Path;
using drawing::Point;

namespace {

// From so many letters on, room is made for all steps at once: each takes two letters at least. What grows
// and shrinks leaves memory behind that nobody uses; of room that is never used the system gives none.
constexpr std::size_t kLongText = std::size_t{1} << 20;
// Not for more than these: a system that promises no more than it has would refuse so much.
constexpr std::size_t kLettersWithRoom = kLongText * 64;

class PathParser {
  public:
    explicit PathParser(std::string_view text) : scanner_(text) {
        const std::size_t steps = std::min(text.size(), kLettersWithRoom) / 2;
        if (text.size() >= kLongText)
            path_.reserve(steps, steps);
    }

    PathData parse() {
        scanner_.skipSpaces();
        if (!scanner_.done() && scanner_.peek() != 'M' && scanner_.peek() != 'm')
            return {{}, {}, false};
        bool good = true;
        while (good && !scanner_.done()) {
            good = command(scanner_.next());
            scanner_.skipSpaces();
        }
        path_.shrinkToFit();
        return {std::move(path_), std::move(insideArcs_), good};
    }

  private:
    bool command(char letter) {
        relative_ = letter >= 'a';
        const char upper = relative_ ? static_cast<char>(letter - 'a' + 'A') : letter;
        scanner_.skipSpaces();
        if (upper == 'Z') {
            path_.close();
            current_ = start_;
            previous_ = 'Z';
            return true;
        }
        char segment = upper;
        do {
            if (!one(segment))
                return false;
            previous_ = segment;
            // Pairs that follow a move are lines.
            if (segment == 'M')
                segment = 'L';
            scanner_.skipSeparator();
        } while (atNumber());
        return true;
    }

    bool atNumber() const {
        const char c = scanner_.peek();
        return text::isDigit(c) || c == '+' || c == '-' || c == '.';
    }

    bool one(char segment) {
        switch (segment) {
        case 'M':
            return move();
        case 'L':
            return line();
        case 'H':
            return straight(&Point::x);
        case 'V':
            return straight(&Point::y);
        case 'C':
            return cubic();
        case 'S':
            return smoothCubic();
        case 'Q':
            return quadratic();
        case 'T':
            return smoothQuadratic();
        case 'A':
            return arc();
        default:
            return false;
        }
    }

    std::optional<double> number() {
        scanner_.skipSeparator();
        return scanner_.number();
    }
    // Any number of points, relative ones made absolute.
    template <std::size_t count> bool points(std::array<Point, count>& list) {
        for (Point& p : list) {
            const auto x = number();
            const auto y = x ? number() : std::nullopt;
            if (!y)
                return false;
            p = {*x, *y};
            if (relative_)
                p = p + current_;
        }
        return true;
    }

    bool move() {
        std::array<Point, 1> p;
        if (!points(p))
            return false;
        path_.moveTo(p[0]);
        start_ = current_ = p[0];
        return true;
    }
    bool line() {
        std::array<Point, 1> p;
        return points(p) && lineTo(p[0]);
    }
    bool lineTo(Point end) {
        path_.lineTo(end);
        current_ = end;
        return true;
    }
    bool straight(double Point::*axis) {
        const auto value = number();
        if (!value)
            return false;
        Point end = current_;
        end.*axis = relative_ ? end.*axis + *value : *value;
        return lineTo(end);
    }
    bool cubic() {
        std::array<Point, 3> p;
        return points(p) && cubicTo(p[0], p[1], p[2]);
    }
    bool smoothCubic() {
        std::array<Point, 2> p;
        const bool follows = previous_ == 'C' || previous_ == 'S';
        const Point control1 = follows ? current_ * 2 - control_ : current_;
        return points(p) && cubicTo(control1, p[0], p[1]);
    }
    bool cubicTo(Point control1, Point control2, Point end) {
        path_.cubicTo(control1, control2, end);
        control_ = control2;
        current_ = end;
        return true;
    }
    bool quadratic() {
        std::array<Point, 2> p;
        return points(p) && quadraticTo(p[0], p[1]);
    }
    bool smoothQuadratic() {
        std::array<Point, 1> p;
        const bool follows = previous_ == 'Q' || previous_ == 'T';
        const Point control = follows ? current_ * 2 - control_ : current_;
        return points(p) && quadraticTo(control, p[0]);
    }
    bool quadraticTo(Point control, Point end) {
        path_.cubicTo(current_ + (control - current_) * (2.0 / 3), end + (control - end) * (2.0 / 3), end);
        control_ = control;
        current_ = end;
        return true;
    }
    // Flags may stand without a separator.
    std::optional<bool> flag() {
        scanner_.skipSeparator();
        if (scanner_.take('1'))
            return true;
        if (scanner_.take('0'))
            return false;
        return std::nullopt;
    }
    bool arc() {
        const auto rx = number();
        const auto ry = rx ? number() : std::nullopt;
        const auto turn = ry ? number() : std::nullopt;
        const auto large = turn ? flag() : std::nullopt;
        const auto sweep = large ? flag() : std::nullopt;
        std::array<Point, 1> end;
        if (!sweep || !points(end))
            return false;
        const ArcShape shape{*rx, *ry, *turn, *large ? ArcSize::Large : ArcSize::Small,
                             *sweep ? ArcSweep::Clockwise : ArcSweep::Counterclockwise};
        auto verb = static_cast<std::uint32_t>(path_.verbs().size());
        addArc(path_, current_, end[0], shape);
        for (; verb + 1 < path_.verbs().size(); ++verb)
            insideArcs_.push_back(verb);
        current_ = end[0];
        return true;
    }

    Scanner scanner_;
    Path path_;
    std::vector<std::uint32_t> insideArcs_;
    Point start_;
    Point current_;
    Point control_; // last control point of the segment before
    char previous_ = 'Z';
    bool relative_ = false;
};

} // namespace

PathData parsePathData(std::string_view text) {
    return PathParser(text).parse();
}

std::vector<Point> parsePoints(std::string_view text) {
    std::vector<Point> points;
    Scanner scanner(text);
    scanner.skipSpaces();
    while (const auto x = scanner.number()) {
        scanner.skipSeparator();
        const auto y = scanner.number();
        if (!y)
            break;
        points.push_back({*x, *y});
        scanner.skipSeparator();
    }
    return points;
}

} // namespace easel::svg
