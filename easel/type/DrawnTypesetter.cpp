#include "easel/type/DrawnTypesetter.h"

#include "easel/text/Ascii.h"
#include "easel/text/Utf8.h"

#include <algorithm>
#include <cstdlib>
#include <iterator>
#include <utility>

namespace easel::type {

namespace {

// The smaller, the nearer to what is asked for.
int distance(const DrawnFont& font, const Font& asked) {
    constexpr int kOtherSlant = 10000;
    const bool sameSlant = (font.font.slant == Slant::Upright) == (asked.slant == Slant::Upright);
    return (sameSlant ? 0 : kOtherSlant) + (font.anyWeight ? 0 : std::abs(font.font.weight - asked.weight));
}

std::size_t lengthOf(std::u32string_view characters) {
    std::string text;
    for (const char32_t character : characters)
        text::appendUtf8(text, character);
    return text.size();
}

} // namespace

DrawnTypesetter::DrawnTypesetter(std::vector<DrawnFont> fonts, Typesetter& others)
    : fonts_(std::move(fonts)), others_(others) {
    for (DrawnFont& font : fonts_)
        font.sealFace();
}

bool DrawnTypesetter::has(const std::string& family) {
    const std::string name = text::lowerCase(family);
    return others_.has(family) || std::any_of(fonts_.begin(), fonts_.end(), [&](const DrawnFont& font) {
               return text::lowerCase(font.font.families) == name;
           });
}

DrawnTypesetter::Choice DrawnTypesetter::choose(const Font& font) {
    const std::string& names = font.families;
    for (std::size_t begin = 0; begin <= names.size();) {
        const std::size_t end = std::min(names.find(',', begin), names.size());
        const std::string name = names.substr(begin, end - begin);
        const std::string wanted = text::lowerCase(name);
        const DrawnFont* nearest = nullptr;
        for (const DrawnFont& each : fonts_)
            if (text::lowerCase(each.font.families) == wanted &&
                (!nearest || distance(each, font) < distance(*nearest, font)))
                nearest = &each;
        if (nearest)
            return {nearest, end == names.size()};
        if (others_.has(name))
            return {};
        begin = end + 1;
    }
    return {};
}

FontMetrics DrawnTypesetter::metrics(const Font& font) {
    const Choice choice = choose(font);
    return choice.font ? choice.font->metrics : others_.metrics(font);
}

std::vector<Cluster> DrawnTypesetter::shape(const Line& line) {
    std::vector<Part> parts;
    std::size_t begin = 0;
    for (const FontRun& run : line.runs) {
        addRun(parts, line, begin, run);
        begin = run.end;
    }
    std::vector<Cluster> clusters;
    if (line.rightToLeft)
        std::reverse(parts.begin(), parts.end());
    for (Part& part : parts) {
        std::vector<Cluster> own = clustersOf(part, line);
        std::move(own.begin(), own.end(), std::back_inserter(clusters));
    }
    return clusters;
}

DrawnTypesetter::Part& DrawnTypesetter::partFor(std::vector<Part>& parts, std::size_t begin, bool drawn) {
    if (parts.empty() || parts.back().runs.empty() != drawn)
        parts.push_back({begin, begin, {}, {}});
    return parts.back();
}

void DrawnTypesetter::addRun(std::vector<Part>& parts, const Line& line, std::size_t begin,
                             const FontRun& run) {
    const Choice choice = choose(*run.font);
    const auto addOthers = [&](std::size_t from, std::size_t to) {
        Part& part = partFor(parts, from, false);
        part.end = to;
        part.runs.push_back({to - part.begin, run.font});
    };
    if (!choice.font)
        return addOthers(begin, run.end);
    const std::vector<char32_t> points =
        text::codePointsOf(std::string_view(line.text).substr(begin, run.end - begin));
    std::u32string_view rest(points.data(), points.size());
    const DrawnGlyph* last = nullptr;
    for (std::size_t at = begin; !rest.empty();) {
        const DrawnGlyph* glyph = choice.font->match(rest);
        const std::size_t count = glyph ? glyph->characters.size() : 1;
        const std::size_t end = at + lengthOf(rest.substr(0, count));
        // What the font lacks is for the next family, and the sign for that only without one.
        if (!glyph && choice.isLast)
            glyph = choice.font->missing();
        if (!glyph) {
            addOthers(at, end);
        } else {
            Part& part = partFor(parts, at, true);
            if (last && !part.clusters.empty())
                part.clusters.back().advance -= choice.font->kerning(*last, *glyph);
            part.clusters.push_back(
                {at, end, glyph->outline, glyph->advance, line.rightToLeft, false, choice.font->face(), {}});
            part.end = end;
        }
        last = glyph;
        at = end;
        rest.remove_prefix(count);
    }
}

std::vector<Cluster> DrawnTypesetter::clustersOf(Part& part, const Line& line) {
    if (part.runs.empty()) {
        if (line.rightToLeft)
            std::reverse(part.clusters.begin(), part.clusters.end());
        return std::move(part.clusters);
    }
    Line own = line;
    own.text = line.text.substr(part.begin, part.end - part.begin);
    own.runs = part.runs;
    std::vector<Cluster> clusters = others_.shape(own);
    for (Cluster& cluster : clusters) {
        cluster.begin += part.begin;
        cluster.end += part.begin;
    }
    return clusters;
}

} // namespace easel::type
