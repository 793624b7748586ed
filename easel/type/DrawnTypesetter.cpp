#include "easel/type/DrawnTypesetter.h"

#include "easel/text/Utf8.h"
#include "easel/type/StandingLetters.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace easel::type {

using drawing::Affine;

namespace {

// Letters that are bold are not made bolder, and those that lean lean enough.
Look lookOf(const LoadedFace& face, const Font& asked, bool rightToLeft) {
    constexpr int kBold = 600;
    const auto said = face.weights;
    const Weights own = (said ? said : face.letters->weights()).value_or(Weights{0, face.font.weight});
    return {asked.weight >= kBold && own.most < kBold,
            asked.slant != Slant::Upright && face.font.slant == Slant::Upright,
            asked.ligatures,
            rightToLeft,
            asked.language,
            own.nearest(asked.weight),
            face.variations + ',' + asked.variations};
}

// What says how other letters are to be set goes with them.
bool goesWithOthers(char32_t c) {
    return (c >= 0x200B && c <= 0x200F) || (c >= 0x202A && c <= 0x202E) || (c >= 0x2060 && c <= 0x2069) ||
           (c >= 0xFE00 && c <= 0xFE0F);
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
    : own_{std::move(fonts), std::move(loaded)}, others_(others) {
    for (DrawnFont& font : own_.drawn)
        font.sealFace();
}

bool DrawnTypesetter::has(const std::string& family) {
    return own_.has(family) || others_.has(family);
}

FontMetrics DrawnTypesetter::metrics(const Font& font) {
    const FontChoice choice(own_, others_, std::make_shared<const Font>(font));
    const ChosenFont& main = choice.main();
    if (main.drawn)
        return main.drawn->metrics;
    return main.loaded ? main.loaded->letters->metrics() : others_.metrics(*main.system);
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
    const FontChoice choice(own_, others_, run.font);
    if (choice.isSystemAlone())
        return addOthers(parts, begin, run, false);
    const std::vector<char32_t> points =
        text::codePointsOf(std::string_view(line.text).substr(begin, run.end - begin));
    std::u32string_view rest(points.data(), points.size());
    Next last;
    for (std::size_t at = begin; !rest.empty(); at = last.end) {
        Next next;
        next.how = line.vertical && stands(rest.front(), line.upright) ? Follow::Down : Follow::Across;
        const bool goesAlong = at > begin && !last.found.font.drawn && goesWithOthers(rest.front());
        next.found = goesAlong ? last.found : choice.of(rest, next.how);
        const DrawnGlyph* const glyph = next.found.glyph;
        const std::size_t count = glyph && !glyph->characters.empty() ? glyph->characters.size() : 1;
        next.begin = at;
        next.end = at + lengthOf(rest.substr(0, count));
        next.goesOn = at > begin && next.found.font == last.found.font;
        next.before = next.goesOn ? last.found.glyph : nullptr;
        add(parts, line, run, next);
        last = std::move(next);
        rest.remove_prefix(count);
    }
}

void DrawnTypesetter::add(std::vector<Part>& parts, const Line& line, const FontRun& run, const Next& next) {
    const ChosenFont& font = next.found.font;
    if (font.drawn)
        return addDrawn(parts, line, next);
    if (!font.loaded)
        return addOthers(parts, next.begin, {next.end, font.system}, next.goesOn);
    if (!next.goesOn)
        parts.push_back({next.begin,
                         next.end,
                         {},
                         font.loaded->letters.get(),
                         lookOf(*font.loaded, *run.font, line.rightToLeft),
                         {}});
    parts.back().end = next.end;
}

void DrawnTypesetter::addOthers(std::vector<Part>& parts, std::size_t begin, const FontRun& run,
                                bool goesOn) {
    if (parts.empty() || parts.back().runs.empty())
        parts.push_back({begin, begin, {}, nullptr, {}, {}});
    Part& part = parts.back();
    part.end = run.end;
    if (!goesOn)
        part.runs.push_back({0, run.font});
    part.runs.back().end = run.end - part.begin;
}

void DrawnTypesetter::addDrawn(std::vector<Part>& parts, const Line& line, const Next& next) {
    if (parts.empty() || !parts.back().isDrawn())
        parts.push_back({next.begin, next.begin, {}, nullptr, {}, {}});
    Part& part = parts.back();
    const DrawnFont& font = *next.found.font.drawn;
    const DrawnGlyph& glyph = *next.found.glyph;
    const bool isUpright = next.how == Follow::Down;
    if (next.before && part.clusters.back().upright == isUpright)
        part.clusters.back().advance -= font.kerning(next.how, *next.before, glyph);
    const drawing::Point origin = isUpright ? glyph.top : drawing::Point();
    part.clusters.push_back({next.begin,
                             next.end,
                             glyph.outline.transformed(Affine::translation(-origin.x, -origin.y)),
                             isUpright ? glyph.down : glyph.advance,
                             line.rightToLeft,
                             isUpright,
                             font.face(),
                             {}});
    part.end = next.end;
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
