#include "easel/type/DrawnTypesetter.h"

#include "easel/text/Ascii.h"
#include "easel/text/Utf8.h"
#include "easel/type/StandingLetters.h"

#include <algorithm>
#include <cstdlib>
#include <iterator>
#include <limits>
#include <utility>

namespace easel::type {

using drawing::Affine;

namespace {

// The smaller, the nearer to what is asked for.
int distance(const Font& font, bool anyWeight, const Font& asked) {
    constexpr int kOtherSlant = 10000;
    const bool sameSlant = (font.slant == Slant::Upright) == (asked.slant == Slant::Upright);
    return (sameSlant ? 0 : kOtherSlant) + (anyWeight ? 0 : std::abs(font.weight - asked.weight));
}

bool isOf(const Font& font, const std::string& family) {
    return text::equalIgnoringCase(font.families, family);
}

// Letters that are bold are not made bolder, and those that lean lean enough.
Look lookOf(const LoadedFace& face, const Font& asked, bool rightToLeft) {
    constexpr int kBold = 600;
    return {asked.weight >= kBold && face.font.weight < kBold,
            asked.slant != Slant::Upright && face.font.slant == Slant::Upright, asked.ligatures, rightToLeft,
            asked.language};
}

// What says how other letters are to be set goes with them.
bool goesWithOthers(char32_t c) {
    return (c >= 0x200B && c <= 0x200F) || (c >= 0x202A && c <= 0x202E) || (c >= 0x2060 && c <= 0x2069) ||
           (c >= 0xFE00 && c <= 0xFE0F);
}

// The font of the system that stands in for one.
Font instead(const LoadedFace& face, const Font& asked) {
    Font font = asked;
    font.families = face.systemFamily + ',' + asked.families;
    return font;
}

std::size_t lengthOf(std::u32string_view characters) {
    std::string text;
    for (const char32_t character : characters)
        text::appendUtf8(text, character);
    return text.size();
}

} // namespace

DrawnTypesetter::DrawnTypesetter(std::vector<DrawnFont> fonts, Typesetter& others,
                                 std::vector<LoadedFace> loaded)
    : fonts_(std::move(fonts)), loaded_(std::move(loaded)), others_(others) {
    for (DrawnFont& font : fonts_)
        font.sealFace();
}

bool DrawnTypesetter::has(const std::string& family) {
    const Choice own = nearest(family, {});
    return own.drawn || own.loaded || others_.has(family);
}

DrawnTypesetter::Choice DrawnTypesetter::nearest(const std::string& family, const Font& asked) const {
    Choice choice;
    int least = std::numeric_limits<int>::max();
    const auto isNearer = [&](const Font& font, bool anyWeight) {
        const int away = isOf(font, family) ? distance(font, anyWeight, asked) : least;
        if (away >= least)
            return false;
        least = away;
        return true;
    };
    for (const LoadedFace& face : loaded_)
        if (isNearer(face.font, false))
            choice = {nullptr, &face};
    for (const DrawnFont& font : fonts_)
        if (isNearer(font.font, font.anyWeight))
            choice = {&font, nullptr};
    return choice;
}

DrawnTypesetter::Choice DrawnTypesetter::choose(const Font& font) {
    const std::string& names = font.families;
    for (std::size_t begin = 0; begin <= names.size();) {
        const std::size_t end = std::min(names.find(',', begin), names.size());
        const std::string name = names.substr(begin, end - begin);
        Choice choice = nearest(name, font);
        choice.isLast = end == names.size();
        if (choice.drawn || choice.loaded)
            return choice;
        if (others_.has(name))
            return {};
        begin = end + 1;
    }
    return {};
}

FontMetrics DrawnTypesetter::metrics(const Font& font) {
    const Choice choice = choose(font);
    if (choice.drawn)
        return choice.drawn->metrics;
    if (!choice.loaded)
        return others_.metrics(font);
    return choice.loaded->letters ? choice.loaded->letters->metrics()
                                  : others_.metrics(instead(*choice.loaded, font));
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

void DrawnTypesetter::addRun(std::vector<Part>& parts, const Line& line, std::size_t begin,
                             const FontRun& run) {
    const Choice choice = choose(*run.font);
    if (choice.drawn)
        return addDrawn(parts, line, begin, run, choice);
    if (choice.loaded && choice.loaded->letters)
        return addLoaded(parts, line, begin, run, *choice.loaded);
    if (choice.loaded)
        return addOthers(parts, begin,
                         {run.end, std::make_shared<const Font>(instead(*choice.loaded, *run.font))});
    addOthers(parts, begin, run);
}

void DrawnTypesetter::addOthers(std::vector<Part>& parts, std::size_t begin, const FontRun& run) {
    if (parts.empty() || parts.back().runs.empty())
        parts.push_back({begin, begin, {}, nullptr, {}, {}});
    Part& part = parts.back();
    part.end = run.end;
    part.runs.push_back({run.end - part.begin, run.font});
}

void DrawnTypesetter::addLoaded(std::vector<Part>& parts, const Line& line, std::size_t begin,
                                const FontRun& run, const LoadedFace& face) {
    std::size_t at = begin;
    bool isFirst = true;
    for (const char32_t character :
         text::codePointsOf(std::string_view(line.text).substr(begin, run.end - begin))) {
        const std::size_t end = at + lengthOf({&character, 1});
        // What the font lacks is for the next family, or for whichever the system has it in.
        const bool isOthers =
            !isFirst && goesWithOthers(character) ? !parts.back().loaded : !face.letters->has(character);
        if (isOthers) {
            addOthers(parts, at, {end, run.font});
        } else {
            if (isFirst || !parts.back().loaded)
                parts.push_back(
                    {at, at, {}, face.letters.get(), lookOf(face, *run.font, line.rightToLeft), {}});
            parts.back().end = end;
        }
        isFirst = false;
        at = end;
    }
}

void DrawnTypesetter::addDrawn(std::vector<Part>& parts, const Line& line, std::size_t begin,
                               const FontRun& run, const Choice& choice) {
    const std::vector<char32_t> points =
        text::codePointsOf(std::string_view(line.text).substr(begin, run.end - begin));
    std::u32string_view rest(points.data(), points.size());
    const DrawnGlyph* last = nullptr;
    for (std::size_t at = begin; !rest.empty();) {
        const DrawnGlyph* glyph = choice.drawn->match(rest);
        const std::size_t count = glyph ? glyph->characters.size() : 1;
        const std::size_t end = at + lengthOf(rest.substr(0, count));
        // What the font lacks is for the next family, and the sign for that only without one.
        if (!glyph && choice.isLast)
            glyph = choice.drawn->missing();
        if (!glyph) {
            addOthers(parts, at, {end, run.font});
        } else {
            if (parts.empty() || !parts.back().isDrawn())
                parts.push_back({at, at, {}, nullptr, {}, {}});
            Part& part = parts.back();
            const bool isUpright = line.vertical && stands(rest.front(), line.upright);
            if (last && !part.clusters.empty() && part.clusters.back().upright == isUpright)
                part.clusters.back().advance -=
                    choice.drawn->kerning(isUpright ? Follow::Down : Follow::Across, *last, *glyph);
            const drawing::Point origin = isUpright ? glyph->top : drawing::Point();
            part.clusters.push_back({at,
                                     end,
                                     glyph->outline.transformed(Affine::translation(-origin.x, -origin.y)),
                                     isUpright ? glyph->down : glyph->advance,
                                     line.rightToLeft,
                                     isUpright,
                                     choice.drawn->face(),
                                     {}});
            part.end = end;
        }
        last = glyph;
        at = end;
        rest.remove_prefix(count);
    }
}

std::vector<Cluster> DrawnTypesetter::clustersOf(Part& part, const Line& line) {
    if (part.isDrawn()) {
        if (line.rightToLeft)
            std::reverse(part.clusters.begin(), part.clusters.end());
        return std::move(part.clusters);
    }
    Line own = line;
    own.text = line.text.substr(part.begin, part.end - part.begin);
    own.runs = part.runs;
    std::vector<Cluster> clusters =
        part.loaded ? part.loaded->shape(own.text, part.look) : others_.shape(own);
    for (Cluster& cluster : clusters) {
        cluster.begin += part.begin;
        cluster.end += part.begin;
    }
    return clusters;
}

} // namespace easel::type
