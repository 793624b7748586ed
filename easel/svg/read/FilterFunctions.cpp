// The filter functions of CSS as effects: Filter Effects 1, 6 and 13.
#include "easel/svg/read/FilterFunctions.h"

#include "easel/svg/read/FilterEffects.h"
#include "easel/svg/style/Color.h"
#include "easel/svg/text/Scanner.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>
#include <vector>

namespace easel::svg {

using namespace drawing;

namespace {

// A number or percentage, not below 0; 1 if there is none.
std::optional<double> amountOf(std::string_view text) {
    if (text.empty())
        return 1;
    const auto amount = parseFraction(text);
    return amount && std::isfinite(*amount) && *amount >= 0 ? amount : std::nullopt;
}

std::optional<double> degreesOf(std::string_view text) {
    if (text.empty())
        return 0;
    static constexpr std::array<std::pair<std::string_view, double>, 4> kUnits = {
        {{"deg", 1}, {"grad", 0.9}, {"rad", 180 / std::numbers::pi}, {"turn", 360}}};
    Scanner scanner(text);
    const auto value = scanner.number();
    if (!value || !std::isfinite(*value))
        return std::nullopt;
    for (const auto& [unit, degrees] : kUnits)
        if (equalIgnoringCase(scanner.rest(), unit))
            return *value * degrees;
    return *value == 0 && scanner.done() ? value : std::nullopt;
}

// The same linear function for red, green and blue.
TransferEffect linearEffect(double slope, double offset) {
    TransferFunction function;
    function.kind = TransferFunction::Kind::Linear;
    function.slope = slope;
    function.offset = offset;
    return {{function, function, function, {}}};
}

TransferEffect opacityEffect(double amount) {
    TransferEffect effect;
    effect.functions[3].kind = TransferFunction::Kind::Linear;
    effect.functions[3].slope = amount;
    return effect;
}

// Of the color, `amount`; the rest is what the rows make of it.
ColorMatrixEffect towards(const std::array<double, 9>& rows, double amount) {
    ColorMatrixEffect effect = identityMatrix();
    const double rest = 1 - std::min(amount, 1.0);
    for (std::size_t row = 0; row < 3; ++row)
        for (std::size_t column = 0; column < 3; ++column) {
            double& cell = effect.matrix[row * 5 + column];
            cell = rest * cell + (1 - rest) * rows[row * 3 + column];
        }
    return effect;
}

constexpr std::array<double, 9> kGray = {0.2126, 0.7152, 0.0722, 0.2126, 0.7152,
                                         0.0722, 0.2126, 0.7152, 0.0722};
constexpr std::array<double, 9> kSepia = {0.393, 0.769, 0.189, 0.349, 0.686, 0.168, 0.272, 0.534, 0.131};

std::optional<FilterEffect> ofAmount(std::string_view name, double amount) {
    const auto is = [name](std::string_view one) { return equalIgnoringCase(name, one); };
    const double most1 = std::min(amount, 1.0);
    if (is("brightness"))
        return linearEffect(amount, 0);
    if (is("contrast"))
        return linearEffect(amount, 0.5 - 0.5 * amount);
    if (is("invert"))
        return linearEffect(1 - 2 * most1, most1);
    if (is("opacity"))
        return opacityEffect(most1);
    if (is("saturate"))
        return saturation(amount);
    if (is("grayscale"))
        return towards(kGray, amount);
    if (is("sepia"))
        return towards(kSepia, amount);
    return std::nullopt;
}

// The parts of a text between blanks, but for those in parentheses.
std::vector<std::string_view> wordsOf(std::string_view text) {
    std::vector<std::string_view> words;
    std::size_t begin = 0;
    int depth = 0;
    for (std::size_t i = 0; i <= text.size(); ++i) {
        if (i == text.size() || (depth == 0 && isSpace(text[i]))) {
            if (i > begin)
                words.push_back(text.substr(begin, i - begin));
            begin = i + 1;
        } else {
            depth += text[i] == '(' ? 1 : text[i] == ')' ? -1 : 0;
        }
    }
    return words;
}

std::optional<FilterEffect> dropShadow(std::string_view arguments, const LengthContext& lengths,
                                       const ColorPaint& current) {
    ColorPaint color = current;
    std::vector<double> values;
    for (const std::string_view word : wordsOf(arguments)) {
        if (const auto length = parseLength(word, lengths, Axis::Other); length && !word.ends_with('%'))
            values.push_back(*length);
        else if (const auto stated = parseColor(word, current))
            color = *stated;
        else
            return std::nullopt;
    }
    const auto isFar = [](double value) { return !(std::abs(value) < 1e9); };
    if (values.size() < 2 || values.size() > 3 || std::any_of(values.begin(), values.end(), isFar))
        return std::nullopt;
    const double deviation = values.size() == 3 ? values[2] : 0;
    if (deviation < 0)
        return std::nullopt;
    return DropShadowEffect{{deviation, deviation}, {values[0], values[1]}, {color.color, color.opacity}};
}

std::optional<FilterEffect> blur(std::string_view argument, const LengthContext& lengths) {
    if (argument.empty())
        return BlurEffect{};
    const auto deviation = parseLength(argument, lengths, Axis::Other);
    if (!deviation || !(*deviation >= 0 && *deviation < 1e9) || argument.ends_with('%'))
        return std::nullopt;
    return BlurEffect{{*deviation, *deviation}};
}

// Beyond so many deviations, a blur shows nothing.
constexpr double kBlurReach = 3;

} // namespace

std::optional<FilterEffect> functionEffect(std::string_view name, std::string_view arguments,
                                           const LengthContext& lengths, const ColorPaint& color) {
    arguments = trimmed(arguments);
    if (equalIgnoringCase(name, "blur"))
        return blur(arguments, lengths);
    if (equalIgnoringCase(name, "drop-shadow"))
        return dropShadow(arguments, lengths, color);
    if (equalIgnoringCase(name, "hue-rotate")) {
        const auto degrees = degreesOf(arguments);
        return degrees ? std::optional<FilterEffect>(hueRotation(*degrees)) : std::nullopt;
    }
    const auto amount = amountOf(arguments);
    return amount ? ofAmount(name, *amount) : std::nullopt;
}

double reachOf(const FilterEffect& functionEffect) {
    if (const auto* blurred = std::get_if<BlurEffect>(&functionEffect))
        return kBlurReach * blurred->deviation.x;
    if (const auto* shadow = std::get_if<DropShadowEffect>(&functionEffect))
        return kBlurReach * shadow->deviation.x + length(shadow->by);
    return 0;
}

} // namespace easel::svg
