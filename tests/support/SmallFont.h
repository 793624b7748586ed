// A font of a few letters, all of them boxes that stand on the line, so that where they go can be told by
// hand.
#pragma once

#include <cstddef>
#include <cstdint>
#include <map>
#include <string>
#include <utility>
#include <vector>

namespace tests {

// In units of which an em has 1000.
struct SmallGlyph {
    char32_t character = 0; // 0: the sign for what the font lacks
    int width = 0;
    int height = 0;
    int advance = 0;
};

// The first glyph is the sign for what is lacking; the others come in the order of their characters.
inline const std::vector<SmallGlyph>& smallGlyphs() {
    static const std::vector<SmallGlyph> kGlyphs = {{0, 100, 1000, 500},
                                                    {U'A', 500, 500, 600},
                                                    {U'B', 1000, 500, 1200},
                                                    {U'\u05d0', 300, 500, 400},
                                                    {U'\u05d1', 200, 500, 300}};
    return kGlyphs;
}

// Numbers as fonts have them, the highest byte first.
class FontBytes {
  public:
    FontBytes& add(std::size_t bytes, std::int64_t value) {
        for (std::size_t i = bytes; i > 0; --i)
            text_ += static_cast<char>(value >> (8 * (i - 1)) & 0xFF);
        return *this;
    }
    FontBytes& words(const std::vector<int>& values) {
        for (const int value : values)
            add(2, value);
        return *this;
    }
    FontBytes& add(const std::string& text) {
        text_ += text;
        return *this;
    }
    FontBytes& fill() {
        text_.resize((text_.size() + 3) / 4 * 4);
        return *this;
    }
    std::size_t size() const { return text_.size(); }
    const std::string& text() const { return text_; }

  private:
    std::string text_;
};

// The tables of the font by their names.
inline std::map<std::string, std::string> smallFontTables() {
    const auto& glyphs = smallGlyphs();
    const auto count = static_cast<int>(glyphs.size());
    FontBytes head, hhea, maxp, hmtx, cmap, loca, glyf;
    head.add(4, 0x10000).add(4, 0x10000).add(4, 0).add(4, 0x5F0F3CF5).words({0, 1000}).add(8, 0).add(8, 0);
    head.words({0, 0, 1000, 1000, 0, 8, 2, 0, 0});
    hhea.add(4, 0x10000).words({800, -200, 0, 1200, 0, 0, 1000, 1, 0, 0, 0, 0, 0, 0, 0, count});
    maxp.add(4, 0x10000).words({count, 4, 1, 0, 0, 1, 0, 0, 0, 0, 0, 0, 0, 0});
    cmap.words({0, 1, 3, 10}).add(4, 12);
    cmap.words({12, 0}).add(4, 16 + 12 * (count - 1)).add(4, 0).add(4, count - 1);
    for (int i = 0; i < count; ++i) {
        const SmallGlyph& glyph = glyphs[static_cast<std::size_t>(i)];
        hmtx.words({glyph.advance, 0});
        if (i > 0)
            cmap.add(4, glyph.character).add(4, glyph.character).add(4, i);
        loca.add(2, static_cast<std::int64_t>(glyf.size() / 2));
        // One contour of four points on the outline, with no instructions.
        glyf.words({1, 0, 0, glyph.width, glyph.height, 3, 0}).add(4, 0x01010101);
        glyf.words({0, 0, glyph.width, 0, 0, glyph.height, 0, -glyph.height}).fill();
    }
    loca.add(2, static_cast<std::int64_t>(glyf.size() / 2));
    return {{"cmap", cmap.text()}, {"glyf", glyf.text()}, {"head", head.text()}, {"hhea", hhea.text()},
            {"hmtx", hmtx.text()}, {"loca", loca.text()}, {"maxp", maxp.text()}};
}

// As a TrueType file.
inline std::string fontOf(const std::map<std::string, std::string>& tables) {
    const auto count = static_cast<int>(tables.size());
    FontBytes file, data;
    file.add(4, 0x10000).words({count, 64, 2, count * 16 - 64});
    for (const auto& [name, table] : tables) {
        file.add(name).add(4, 0).add(4, static_cast<std::int64_t>(12 + 16 * tables.size() + data.size()));
        file.add(4, static_cast<std::int64_t>(table.size()));
        data.add(table).fill();
    }
    return file.text() + data.text();
}

inline std::string smallFont() {
    return fontOf(smallFontTables());
}

// What moves the letter behind A farther away towards the greatest weight: a rule, and by how much.
inline void addVariableGap(std::map<std::string, std::string>& tables) {
    FontBytes rule, amount;
    rule.words({1, 0, 10, 30, 44, 1}).add("DFLT").words({8, 4, 0, 0, 0xFFFF, 1, 0, 1}).add("kern");
    rule.words({8, 0, 1, 0, 1, 4, 1, 0, 1, 8}).words({1, 10, 0x44, 0, 16, 1, 1, 1, 0, 0, 0x8000});
    amount.words({1, 3, 0, 0, 0, 0, 0}).add(4, 18);
    amount.words({1}).add(4, 12).words({1}).add(4, 22).words({1, 1, 0, 1 << 14, 1 << 14, 1, 1, 1, 0, 100});
    tables["GPOS"] = rule.text();
    tables["GDEF"] = amount.text();
}

// The same with weights from 100 to 900: towards 900 each letter becomes 400 wider, and so does its advance,
// to which 100 are added behind A.
inline std::string smallVariableFont() {
    constexpr std::int64_t kFixed = 1 << 16;
    constexpr int kOne = 1 << 14;
    const auto count = static_cast<int>(smallGlyphs().size());
    FontBytes axes, letters;
    axes.words({1, 0, 16, 2, 1, 20, 0, 8}).add("wght");
    axes.add(4, 100 * kFixed).add(4, 400 * kFixed).add(4, 900 * kFixed).words({0, 256});
    // The changes of one letter: how far its four points, and the four that its advances are measured by, go
    // to the right, and eight that do not go up.
    FontBytes changes;
    changes.words({1, 10, 19, 0xA000, kOne}).add(1, 0).add(1, 0x47).words({0, 400, 400, 0, 0, 400, 0, 0});
    changes.add(1, 0x87).fill();
    letters.words({1, 0, 1, 0}).add(4, 0).words({count, 1}).add(4, 20 + 4 * (count + 1));
    for (int i = 0; i <= count; ++i)
        letters.add(4, static_cast<std::int64_t>(changes.size()) * i);
    for (int i = 0; i < count; ++i)
        letters.add(changes.text());
    auto tables = smallFontTables();
    tables["fvar"] = axes.text();
    tables["gvar"] = letters.text();
    addVariableGap(tables);
    return fontOf(tables);
}

// The small font as a WOFF file, whose tables need not be made smaller.
inline std::string smallWoff() {
    const auto tables = smallFontTables();
    FontBytes directory, data;
    for (const auto& [name, table] : tables) {
        directory.add(name).add(4, static_cast<std::int64_t>(44 + 20 * tables.size() + data.size()));
        directory.add(4, static_cast<std::int64_t>(table.size()));
        directory.add(4, static_cast<std::int64_t>(table.size())).add(4, 0);
        data.add(table).fill();
    }
    FontBytes file;
    file.add("wOFF").add(4, 0x10000).add(4, static_cast<std::int64_t>(44 + directory.size() + data.size()));
    file.words({static_cast<int>(tables.size()), 0});
    file.add(4, static_cast<std::int64_t>(smallFont().size())).words({1, 0});
    for (int i = 0; i < 5; ++i)
        file.add(4, 0);
    return file.text() + directory.text() + data.text();
}

// The same as a WOFF2 file: all tables one behind the other, packed by Brotli, which may leave them as they
// are.
inline std::string smallWoff2() {
    // The tables that every font has are named by their numbers. Letters that are not packed in a way of
    // their own are said to be so.
    constexpr int kAsTheyAre = 3 << 6;
    const std::vector<std::pair<std::string, int>> order = {{"cmap", 0},
                                                            {"glyf", 10 | kAsTheyAre},
                                                            {"loca", 11 | kAsTheyAre},
                                                            {"head", 1},
                                                            {"hhea", 2},
                                                            {"hmtx", 3},
                                                            {"maxp", 4}};
    const auto tables = smallFontTables();
    FontBytes directory, data;
    for (const auto& [name, flags] : order) {
        const std::string& table = tables.at(name);
        directory.add(1, flags);
        // Seven bits a byte, the highest first, each but the last with a mark.
        if (table.size() >= 128)
            directory.add(1, static_cast<std::int64_t>(128 | table.size() >> 7));
        directory.add(1, static_cast<std::int64_t>(table.size() % 128));
        data.add(table);
    }
    // One block of so many bytes that are not packed, and an empty last one.
    const std::size_t block = (data.size() - 1) << 4 | 1U << 20;
    FontBytes packed;
    for (int i = 0; i < 3; ++i)
        packed.add(1, static_cast<std::int64_t>(block >> (8 * i)));
    packed.add(data.text()).add(1, 3);
    const std::size_t size = (48 + directory.size() + packed.size() + 3) / 4 * 4;
    FontBytes file;
    file.add("wOF2").add(4, 0x10000).add(4, static_cast<std::int64_t>(size));
    file.words({static_cast<int>(tables.size()), 0});
    file.add(4, static_cast<std::int64_t>(smallFont().size()))
        .add(4, static_cast<std::int64_t>(packed.size()));
    file.words({1, 0});
    for (int i = 0; i < 5; ++i)
        file.add(4, 0);
    return file.add(directory.text()).add(packed.text()).fill().text();
}

} // namespace tests
