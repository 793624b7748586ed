// Reading a CSS gradient: which one, and where it runs.
#include "easel/exchange/CssGradient.h"
#include "easel/exchange/CssStops.h"
#include "easel/exchange/CssText.h"
#include "easel/text/Ascii.h"

#include <cmath>
#include <numbers>
#include <optional>

namespace easel::exchange {
namespace {

using text::lowerCase;
using Words = std::vector<std::string_view>;

enum class Mixing { Untold, InSrgbAsTold };

struct Reading {
    ImportedGradient result;
    Notes notes;
    Mixing mixing = Mixing::Untold;
};

// The angle of the record: 0 to the right and growing counter-clockwise, where CSS has 0 upwards and grows
// clockwise.
void setAngle(CGradientData& gradient, double cssDegrees) {
    gradient.SetAngle(static_cast<float>(std::remainder(90 - cssDegrees, 360)));
}

std::optional<double> degreesIn(std::string_view word) {
    const auto number = numberIn(word);
    if (!number)
        return std::nullopt;
    if (number->unit == "deg" || (number->unit.empty() && number->value == 0))
        return number->value;
    if (number->unit == "turn")
        return number->value * 360;
    if (number->unit == "grad")
        return number->value * 0.9;
    if (number->unit == "rad")
        return number->value * 180 / std::numbers::pi;
    return std::nullopt;
}

// -1, 0 or 1 in each direction.
struct Side {
    int h = 0;
    int v = 0;
};

bool addSide(std::string_view word, Side& side) {
    const auto name = lowerCase(word);
    int& direction = name == "left" || name == "right" ? side.h : side.v;
    if (direction != 0)
        return false;
    direction = name == "left" || name == "top" ? -1 : name == "right" || name == "bottom" ? 1 : 0;
    return direction != 0;
}

bool setSide(const Words& sides, Reading& reading) {
    Side side;
    if (sides.empty() || sides.size() > 2)
        return false;
    for (const auto word : sides)
        if (!addSide(word, side))
            return false;
    if (side.h != 0 && side.v != 0)
        reading.notes.insert("a direction to a corner depends on the shape; it is that of a square");
    setAngle(reading.result.gradient, std::atan2(side.h, -side.v) * 180 / std::numbers::pi);
    return true;
}

// Cuts "in SPACE [... hue]" off the end; the words before it are left.
void takeColorSpace(Words& prelude, Reading& reading) {
    for (std::size_t i = 0; i < prelude.size(); ++i)
        if (lowerCase(prelude[i]) == "in") {
            if (i + 1 < prelude.size() && lowerCase(prelude[i + 1]) == "srgb")
                reading.mixing = Mixing::InSrgbAsTold;
            else
                reading.notes.insert(kColorSpaceNote);
            const bool isFirst = i == 0;
            const std::size_t length = prelude.size() > i + 3 && lowerCase(prelude[i + 3]) == "hue" ? 4 : 2;
            if (isFirst && prelude.size() > length)
                prelude.erase(prelude.begin(), prelude.begin() + static_cast<std::ptrdiff_t>(length));
            else
                prelude.resize(i);
            return;
        }
}

bool readLinear(Words prelude, Reading& reading) {
    auto& gradient = reading.result.gradient;
    gradient.SetType(kLinearGradient);
    setAngle(gradient, 180);
    takeColorSpace(prelude, reading);
    if (prelude.empty())
        return true;
    if (lowerCase(prelude.front()) == "to")
        return setSide({prelude.begin() + 1, prelude.end()}, reading);
    const auto degrees = degreesIn(prelude.front());
    if (!degrees || prelude.size() > 1)
        return false;
    setAngle(gradient, *degrees);
    return true;
}

// A coordinate of the center as a fraction, and whether the word says which coordinate it is.
struct Coordinate {
    enum class Axis { Either, Horizontal, Vertical };
    double fraction = 0.5;
    Axis axis = Axis::Either;
};

std::optional<Coordinate> coordinateIn(std::string_view word, Reading& reading) {
    using Axis = Coordinate::Axis;
    const auto name = lowerCase(word);
    if (name == "center")
        return Coordinate{};
    if (name == "left" || name == "right")
        return Coordinate{name == "left" ? 0.0 : 1.0, Axis::Horizontal};
    if (name == "top" || name == "bottom")
        return Coordinate{name == "top" ? 0.0 : 1.0, Axis::Vertical};
    const auto number = numberIn(word);
    if (!number)
        return std::nullopt;
    if (number->unit == "%")
        return Coordinate{number->value / 100, Axis::Either};
    if (number->value == 0)
        return Coordinate{0, Axis::Either};
    reading.notes.insert(
        "a center given as a length is put in the middle, for it depends on the size of the shape");
    return Coordinate{};
}

bool setCenter(const Words& position, Reading& reading) {
    using Axis = Coordinate::Axis;
    if (position.empty() || position.size() > 2)
        return false;
    auto first = coordinateIn(position[0], reading);
    auto second = position.size() == 2 ? coordinateIn(position[1], reading) : Coordinate{};
    if (!first || !second)
        return false;
    if (first->axis == Axis::Vertical || second->axis == Axis::Horizontal)
        std::swap(first, second);
    if (first->axis == Axis::Vertical || second->axis == Axis::Horizontal)
        return false;
    reading.result.gradient.SetStart({first->fraction, second->fraction});
    reading.result.gradient.SetEnd({first->fraction, second->fraction});
    return true;
}

bool readRadial(Words prelude, Reading& reading) {
    reading.result.gradient.SetType(kRadialGradient);
    takeColorSpace(prelude, reading);
    bool isCircle = false;
    bool isFarthestCorner = true;
    for (std::size_t i = 0; i < prelude.size(); ++i) {
        const auto word = lowerCase(prelude[i]);
        if (word == "at") {
            if (!setCenter({prelude.begin() + static_cast<std::ptrdiff_t>(i) + 1, prelude.end()}, reading))
                return false;
            break;
        }
        if (word == "circle")
            isCircle = true;
        else if (word == "closest-side" || word == "closest-corner" || word == "farthest-side" ||
                 numberIn(word))
            isFarthestCorner = false;
        else if (word != "ellipse" && word != "farthest-corner")
            return false;
    }
    if (!isCircle)
        reading.notes.insert("its ellipse is made a circle");
    if (!isFarthestCorner)
        reading.notes.insert("its size is left out: the circle reaches the farthest corner");
    return true;
}

files::Result<> read(const CssFunction& function, Reading& reading) {
    const auto flaw = [](const std::string& reason) { return tl::unexpected(files::Error{{}, reason, {}}); };
    std::string kind = function.name;
    constexpr std::string_view kRepeating = "repeating-";
    if (kind.starts_with(kRepeating)) {
        kind.erase(0, kRepeating.size());
        reading.notes.insert("its repetition is left out");
    }
    if (kind != "linear-gradient" && kind != "radial-gradient")
        return flaw(function.name + "() cannot be held: only linear-gradient() and radial-gradient() can");
    const auto parts = commaParts(function.arguments);
    const bool hasPrelude = !isColorStop(parts.front());
    const auto prelude = hasPrelude ? words(parts.front()) : Words();
    if (!(kind == "linear-gradient" ? readLinear(prelude, reading) : readRadial(prelude, reading)))
        return flaw(quoted(parts.front()) + " is neither a direction nor a color stop");
    auto stops = stopsFrom(std::span(parts).subspan(hasPrelude ? 1 : 0), reading.notes);
    if (reading.mixing == Mixing::InSrgbAsTold)
        reading.notes.erase(kColorSpaceNote);
    return std::move(stops).map(
        [&](std::list<CGradientColor>&& list) { reading.result.gradient.ColorList() = std::move(list); });
}

} // namespace

files::Result<ImportedGradient> readCss(std::string_view text, const std::filesystem::path& file) {
    const auto functions = gradientFunctions(text);
    if (functions.empty())
        return tl::unexpected(files::Error{file, "there is no CSS gradient in it", {}});
    Reading reading;
    if (functions.size() > 1)
        reading.notes.insert("it has more than one gradient; this is the first");
    if (const auto done = read(functions.front(), reading); !done)
        return tl::unexpected(done.error().of(file));
    reading.result.notes.assign(reading.notes.begin(), reading.notes.end());
    return reading.result;
}

} // namespace easel::exchange
