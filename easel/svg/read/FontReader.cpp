#include "easel/svg/read/FontReader.h"

#include "easel/svg/style/TextStyle.h"
#include "easel/svg/style/UnicodeRange.h"
#include "easel/svg/text/PathData.h"
#include "easel/svg/text/Scanner.h"
#include "easel/text/Utf8.h"

#include <algorithm>
#include <cmath>
#include <optional>
#include <string>
#include <unordered_map>
#include <utility>

namespace easel::svg {

using drawing::Affine;
using type::DrawnFont;
using type::DrawnGlyph;

namespace {

constexpr double kUsualUnitsPerEm = 1000;
constexpr double kLargestMeasure = 1e6; // in units of the font

std::u32string charactersOf(std::string_view utf8) {
    const std::vector<char32_t> points = text::codePointsOf(utf8);
    return {points.begin(), points.end()};
}

class FontElement {
  public:
    FontElement(const XmlTree& tree, pugi::xml_node element, Budget& budget)
        : tree_(tree), element_(element), budget_(budget) {}

    // `named`: instead of what the element says itself; null: nothing is. Nothing if no family is named.
    std::optional<DrawnFont> read(const type::Font* named = nullptr);

  private:
    double measure(pugi::xml_node element, const char* name, double otherwise) const;
    void readFace(pugi::xml_node face);
    void readMetrics(pugi::xml_node face);
    void readGlyph(pugi::xml_node glyph, bool missing);
    void readKerning(pugi::xml_node pair, type::Follow how);
    std::vector<std::size_t> glyphsOf(pugi::xml_node pair, const char* characters, const char* names) const;

    const XmlTree& tree_;
    pugi::xml_node element_;
    Budget& budget_;
    double unitsPerEm_ = kUsualUnitsPerEm;
    DrawnFont font_;
    std::unordered_map<std::string, std::vector<std::size_t>> byName_;
    std::unordered_map<std::u32string, std::vector<std::size_t>> byCharacters_;
};

// In ems.
double FontElement::measure(pugi::xml_node element, const char* name, double otherwise) const {
    Scanner scanner(element.attribute(name).value());
    const auto number = scanner.number();
    return number && std::abs(*number) <= kLargestMeasure ? *number / unitsPerEm_ : otherwise;
}

std::optional<DrawnFont> FontElement::read(const type::Font* named) {
    for (const pugi::xml_node child : element_.children())
        if (tree_.svgName(child) == "font-face")
            readFace(child);
    if (named) {
        font_.font = *named;
        font_.anyWeight = false;
    }
    if (font_.font.families.empty())
        return std::nullopt;
    for (const pugi::xml_node child : element_.children()) {
        budget_.spend(1);
        const std::string_view name = tree_.svgName(child);
        if (name == "glyph" || name == "missing-glyph")
            readGlyph(child, name == "missing-glyph");
    }
    for (const pugi::xml_node child : element_.children())
        if (const std::string_view name = tree_.svgName(child); name == "hkern" || name == "vkern")
            readKerning(child, name == "vkern" ? type::Follow::Down : type::Follow::Across);
    return std::move(font_);
}

void FontElement::readFace(pugi::xml_node face) {
    const auto text = [&](const char* name) { return std::string_view(face.attribute(name).value()); };
    // The face is for one family; quotes are as in CSS.
    const std::string names = familyNames(text("font-family"));
    font_.font.families =
        names.empty() ? std::string(trimmed(text("font-family"))) : names.substr(0, names.find(','));
    unitsPerEm_ = 1;
    const double units = measure(face, "units-per-em", kUsualUnitsPerEm);
    unitsPerEm_ = units > 0 ? units : kUsualUnitsPerEm;
    font_.anyWeight = text("font-weight") == "all";
    font_.font.weight = text("font-weight") == "bold" ? 700 : face.attribute("font-weight").as_int(400);
    const bool slanted =
        text("font-style").starts_with("italic") || text("font-style").starts_with("oblique");
    font_.font.slant = slanted ? type::Slant::Italic : type::Slant::Upright;
    readMetrics(face);
}

void FontElement::readMetrics(pugi::xml_node face) {
    type::FontMetrics& metrics = font_.metrics;
    const auto set = [&](double& value, const char* name) { value = measure(face, name, value); };
    set(metrics.ascent, "ascent");
    set(metrics.descent, "descent");
    // Some state how far it goes down, not where.
    metrics.descent = -std::abs(metrics.descent);
    set(metrics.xHeight, "x-height");
    set(metrics.hanging, "hanging");
    set(metrics.mathematical, "mathematical");
    set(metrics.ideographic, "ideographic");
    set(metrics.underline, "underline-position");
    set(metrics.underlineThickness, "underline-thickness");
    set(metrics.strikethrough, "strikethrough-position");
    set(metrics.strikethroughThickness, "strikethrough-thickness");
}

void FontElement::readGlyph(pugi::xml_node element, bool missing) {
    const std::string_view form = element.attribute("arabic-form").value();
    const std::string_view orientation = element.attribute("orientation").value();
    // Letters are set one by one, and the sign for what is lacking is the same wherever it stands.
    if ((!form.empty() && form != "isolated") || (missing && orientation == "v"))
        return;
    DrawnGlyph glyph;
    if (!missing && (orientation == "v" || orientation == "h"))
        glyph.only = orientation == "v" ? type::Follow::Down : type::Follow::Across;
    if (!missing)
        glyph.characters = charactersOf(element.attribute("unicode").value());
    if (!missing && glyph.characters.empty())
        return;
    glyph.outline = parsePathData(element.attribute("d").value())
                        .path.transformed(Affine::scaling(1 / unitsPerEm_, -1 / unitsPerEm_));
    budget_.spend(glyph.outline.points().size() + glyph.characters.size());
    const double usualAdvance = measure(element_, "horiz-adv-x", 0);
    glyph.advance = measure(element, "horiz-adv-x", usualAdvance);
    // What neither the glyph nor the font says: halfway along and as high as letters are, and an em down.
    const double topX = measure(element_, "vert-origin-x", usualAdvance / 2);
    const double topY = measure(element_, "vert-origin-y", font_.metrics.ascent);
    glyph.top = {measure(element, "vert-origin-x", topX), -measure(element, "vert-origin-y", topY)};
    glyph.down = measure(element, "vert-adv-y", measure(element_, "vert-adv-y", 1));
    const std::size_t number = font_.size();
    byCharacters_[glyph.characters].push_back(number);
    for (std::string_view names = element.attribute("glyph-name").value(); !names.empty();) {
        const std::size_t end = std::min(names.find(','), names.size());
        byName_[std::string(trimmed(names.substr(0, end)))].push_back(number);
        names.remove_prefix(std::min(end + 1, names.size()));
    }
    font_.add(std::move(glyph));
}

void FontElement::readKerning(pugi::xml_node pair, type::Follow how) {
    const std::vector<std::size_t> left = glyphsOf(pair, "u1", "g1");
    std::vector<std::size_t> right = glyphsOf(pair, "u2", "g2");
    budget_.spend(1 + left.size() + right.size());
    if (!left.empty() && !right.empty())
        font_.addKerning(how, left, std::move(right), measure(pair, "k", 0));
}

std::vector<std::size_t> FontElement::glyphsOf(pugi::xml_node pair, const char* characters,
                                               const char* names) const {
    std::vector<std::size_t> glyphs;
    const auto add = [&](const auto& known, const auto& key) {
        if (const auto found = known.find(key); found != known.end())
            glyphs.insert(glyphs.end(), found->second.begin(), found->second.end());
    };
    const auto forEach = [](std::string_view list, auto use) {
        while (!list.empty()) {
            // A comma stands for itself where nothing stands before it.
            const std::size_t end = std::min(list.find(',', 1), list.size());
            use(list.substr(0, end));
            list.remove_prefix(std::min(end + 1, list.size()));
        }
    };
    forEach(pair.attribute(characters).value(), [&](std::string_view each) {
        const auto range = parseUnicodeRange(trimmed(each));
        if (!range)
            return add(byCharacters_, charactersOf(each));
        budget_.spend(font_.size());
        for (std::size_t i = 0; i < font_.size(); ++i) {
            const std::u32string& own = font_.glyph(i).characters;
            if (own.size() == 1 && own.front() >= range->first && own.front() <= range->last)
                glyphs.push_back(i);
        }
    });
    forEach(pair.attribute(names).value(),
            [&](std::string_view each) { add(byName_, std::string(trimmed(each))); });
    return glyphs;
}

} // namespace

std::vector<DrawnFont> readFonts(const XmlTree& tree, Budget& budget) {
    std::vector<DrawnFont> fonts;
    for (pugi::xml_node element = tree.root(); element; element = nextInside(tree.root(), element))
        if (tree.svgName(element) == "font")
            if (auto font = FontElement(tree, element, budget).read())
                fonts.push_back(*std::move(font));
    return fonts;
}

std::optional<DrawnFont> readFont(const XmlTree& tree, pugi::xml_node element, const type::Font& named,
                                  Budget& budget) {
    if (tree.svgName(element) != "font")
        return std::nullopt;
    return FontElement(tree, element, budget).read(&named);
}

} // namespace easel::svg
