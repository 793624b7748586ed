// feComponentTransfer (SVG 1.1, 15.11), on colors that are not multiplied by alpha.
#include "easel/paint/filter/ComponentTransfer.h"

#include "easel/paint/filter/PixelLoops.h"
#include "easel/paint/filter/Shade.h"

#include <cmath>

namespace easel::paint {

namespace {

using drawing::TransferFunction;

double inTable(const std::vector<double>& table, double value) {
    const auto last = table.size() - 1;
    const double place = value * static_cast<double>(last);
    const std::size_t i = std::min(static_cast<std::size_t>(place), last);
    return i == last ? table[i] : table[i] + (place - static_cast<double>(i)) * (table[i + 1] - table[i]);
}

double ofSteps(const std::vector<double>& table, double value) {
    const auto i = static_cast<std::size_t>(value * static_cast<double>(table.size()));
    return table[std::min(i, table.size() - 1)];
}

double unclamped(const TransferFunction& function, double value) {
    switch (function.kind) {
    case TransferFunction::Kind::Table:
        return function.table.empty() ? value : inTable(function.table, value);
    case TransferFunction::Kind::Discrete:
        return function.table.empty() ? value : ofSteps(function.table, value);
    case TransferFunction::Kind::Linear:
        return function.slope * value + function.offset;
    case TransferFunction::Kind::Gamma:
        return function.amplitude * std::pow(value, function.exponent) + function.offset;
    case TransferFunction::Kind::Identity:
        break;
    }
    return value;
}

using ValueTable = std::array<float, 256>;

ValueTable valueTable(const TransferFunction& function) {
    ValueTable table;
    for (std::size_t i = 0; i < table.size(); ++i)
        table[i] = static_cast<float>(transferred(function, static_cast<double>(i) / 255));
    return table;
}

} // namespace

double transferred(const TransferFunction& function, double value) {
    const double result = unclamped(function, value);
    return result > 0 ? std::min(result, 1.0) : 0;
}

Surface changedBy(const drawing::TransferEffect& effect, const Surface& picture) {
    std::array<ValueTable, 4> tables;
    std::transform(effect.functions.begin(), effect.functions.end(), tables.begin(), valueTable);
    const auto changed = [&tables](std::uint32_t pixel) {
        const Shade s = shadeOf(pixel);
        const auto value = [&](std::size_t i, float channel) { return tables[i][levelOf(unit(channel))]; };
        return pixelOf({value(0, s.red), value(1, s.green), value(2, s.blue), value(3, s.alpha)});
    };
    const std::uint32_t ofNothing = changed(0);
    return mapped(picture, [&](std::uint32_t pixel) { return pixel == 0 ? ofNothing : changed(pixel); });
}

} // namespace easel::paint
