#include "easel/type/Chunk.h"

#include "easel/text/Utf8.h"

#include <algorithm>
#include <utility>

namespace easel::type {

namespace {

// Characters that say how others are set, and take up nothing themselves.
bool isControl(char32_t c) {
    return (c >= 0x200b && c <= 0x200f) || (c >= 0x202a && c <= 0x202e) || (c >= 0x2060 && c <= 0x2069) ||
           c == 0xfeff;
}

bool isBlank(char32_t c) {
    return c == ' ' || c == 0xa0;
}

// The characters as a line of text, and where in it each of them begins.
struct ChunkLine {
    Line line;
    std::vector<std::size_t> begins;
};

// Letters that are moved one by one are not joined to ligatures.
bool movesLetters(const Text& text, std::size_t begin, std::size_t end) {
    return std::any_of(text.characters.begin() + static_cast<std::ptrdiff_t>(begin) + 1,
                       text.characters.begin() + static_cast<std::ptrdiff_t>(end),
                       [](const Character& c) { return c.dx != 0 || c.dy != 0; });
}

std::shared_ptr<const Font> withoutLigatures(const Font& font) {
    Font plain = font;
    plain.ligatures = false;
    return std::make_shared<const Font>(std::move(plain));
}

ChunkLine lineOf(const Text& text, std::size_t begin, std::size_t end) {
    ChunkLine chunk;
    Line& line = chunk.line;
    line.rightToLeft = text.rightToLeft;
    line.vertical = text.direction == Direction::Vertical;
    line.upright = text.upright;
    const bool moved = movesLetters(text, begin, end);
    const Font* last = nullptr;
    for (std::size_t i = begin; i < end; ++i) {
        const std::shared_ptr<const Font>& font = text.styles[text.characters[i].style].font;
        chunk.begins.push_back(line.text.size());
        text::appendUtf8(line.text, text.characters[i].character);
        if (!last || (last != font.get() && *last != *font))
            line.runs.push_back({0, moved && font->ligatures ? withoutLigatures(*font) : font});
        last = font.get();
        line.runs.back().end = line.text.size();
    }
    return chunk;
}

// How far below the line its own baseline is: letters that lie in a vertical line are centred on it.
double baselineDrop(const Text& text, const FontMetrics& metrics, double size) {
    return text.direction == Direction::Vertical ? (metrics.ascent + metrics.descent) / 2 * size : 0;
}

double spacingAfter(const RunStyle& style, char32_t character) {
    if (isControl(character))
        return 0;
    return style.letterSpacing + (isBlank(character) ? style.wordSpacing : 0);
}

// Makes the clusters of some characters as long as they are to be; what follows them on the line moves on.
void stretch(Chunk& chunk, const Stretched& wanted) {
    const auto isWithin = [&](const SetCluster& cluster) {
        return cluster.first >= wanted.begin && cluster.first < wanted.end;
    };
    double length = 0;
    double lastSpacing = 0;
    std::size_t count = 0;
    for (const SetCluster& cluster : chunk.clusters) {
        if (!isWithin(cluster))
            continue;
        length += cluster.advance;
        lastSpacing = cluster.advance - cluster.width;
        ++count;
    }
    length -= lastSpacing;
    if (!(length > 0) || !(wanted.length >= 0) || (count < 2 && !wanted.lettersToo))
        return;
    const double factor = wanted.lettersToo ? wanted.length / length : 1;
    const double gap = wanted.lettersToo ? 0 : (wanted.length - length) / static_cast<double>(count - 1);
    double pen = 0;
    for (SetCluster& cluster : chunk.clusters) {
        cluster.along = pen;
        if (isWithin(cluster)) {
            const bool isLast = --count == 0;
            cluster.stretch *= factor;
            cluster.width *= factor;
            cluster.advance = cluster.advance * factor + (isLast ? 0 : gap);
        }
        pen += cluster.advance;
    }
    chunk.length = pen;
}

} // namespace

Chunk setChunk(const Text& text, std::size_t begin, std::size_t end, const std::vector<FontMetrics>& metrics,
               Typesetter& typesetter) {
    const ChunkLine own = lineOf(text, begin, end);
    Chunk chunk;
    for (Cluster& cluster : typesetter.shape(own.line)) {
        const auto after = std::upper_bound(own.begins.begin(), own.begins.end(), cluster.begin);
        SetCluster set;
        set.first = begin + static_cast<std::size_t>(after - own.begins.begin()) - 1;
        const Character& character = text.characters[set.first];
        const RunStyle& style = text.styles[character.style];
        set.outline = std::move(cluster.outline);
        set.face = std::move(cluster.face);
        set.glyphs = std::move(cluster.glyphs);
        set.text = own.line.text.substr(cluster.begin, cluster.end - cluster.begin);
        set.upright = cluster.upright;
        set.rightToLeft = cluster.rightToLeft;
        set.along = chunk.length;
        set.width = cluster.advance * style.size;
        set.advance = set.width + spacingAfter(style, character.character);
        set.across =
            (set.upright ? 0 : baselineDrop(text, metrics[character.style], style.size)) - style.rise;
        chunk.length += set.advance;
        chunk.clusters.push_back(std::move(set));
    }
    auto wanted = std::upper_bound(text.stretched.begin(), text.stretched.end(), begin,
                                   [](std::size_t place, const Stretched& each) { return place < each.end; });
    for (; wanted != text.stretched.end() && wanted->end <= end; ++wanted)
        if (wanted->begin >= begin)
            stretch(chunk, *wanted);
    return chunk;
}

} // namespace easel::type
