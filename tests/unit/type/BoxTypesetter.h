// A typesetter whose letters are boxes half an em wide and one em high, so that where they go can be told by
// hand.
#pragma once

#include "easel/text/Utf8.h"
#include "easel/type/Layout.h"

#include <algorithm>
#include <string>
#include <vector>

class BoxTypesetter : public easel::type::Typesetter {
  public:
    static constexpr double kWidth = 0.5;

    std::vector<easel::type::Cluster> shape(const easel::type::Line& line) override {
        lines.push_back(line);
        std::vector<easel::type::Cluster> clusters;
        for (std::size_t at = 0; at < line.text.size();) {
            const std::size_t length = easel::text::firstCharacter(line.text.substr(at))->length;
            easel::type::Cluster cluster;
            cluster.begin = at;
            cluster.end = at += length;
            cluster.outline = easel::drawing::rectanglePath({0, -1, kWidth, 0});
            cluster.advance = kWidth;
            cluster.face = face;
            cluster.glyphs = {{static_cast<unsigned char>(line.text[cluster.begin]), 0, 0}};
            clusters.push_back(cluster);
        }
        if (line.rightToLeft)
            std::reverse(clusters.begin(), clusters.end());
        return clusters;
    }

    easel::type::FontMetrics metrics(const easel::type::Font&) override {
        easel::type::FontMetrics metrics;
        metrics.ascent = 1;
        metrics.descent = -0.25;
        metrics.underline = -0.125;
        metrics.underlineThickness = 0.0625;
        return metrics;
    }

    bool has(const std::string& family) override { return family == face->family; }

    std::vector<easel::type::Line> lines; // that were shaped
    // Its glyphs have the numbers of the characters' first bytes.
    easel::type::FacePtr face =
        std::make_shared<const easel::type::Face>(easel::type::Face{"Boxes", "/boxes.ttf", 0, {}, true});
};

// Letters of 20 units, so that each is 10 wide, in one style.
inline easel::type::Text textOf(const std::string& letters) {
    easel::type::Text text;
    text.styles.push_back({std::make_shared<const easel::type::Font>(), 20, 0, 0, 0, 0, {}});
    for (const char letter : letters) {
        easel::type::Character character;
        character.character = static_cast<char32_t>(letter);
        text.characters.push_back(character);
    }
    return text;
}

// The boxes of the letters that are painted, in their order.
inline std::vector<easel::drawing::Box> boxesOf(const easel::type::Text& text) {
    BoxTypesetter typesetter;
    const easel::type::PlacedText placed = easel::type::layOut(text, typesetter, [](std::size_t) {});
    std::vector<easel::drawing::Box> boxes;
    for (const easel::type::PaintedOutline& outline : placed.outlines)
        for (std::size_t i = 0; outline.letters && i + 4 <= outline.outline.points().size(); i += 4) {
            easel::drawing::Box box;
            for (std::size_t corner = 0; corner < 4; ++corner)
                box.add(outline.outline.points()[i + corner]);
            boxes.push_back(box);
        }
    return boxes;
}
