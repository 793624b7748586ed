// Text in fonts that a drawing brings along.
#include "BoxTypesetter.h"

#include "easel/type/DrawnTypesetter.h"

#include <gtest/gtest.h>

using namespace easel::type;
using easel::drawing::rectanglePath;

namespace {

// A glyph of that width.
DrawnGlyph glyphOf(const std::u32string& characters, double width) {
    return {characters, rectanglePath({0, -1, width, 0}), width};
}

DrawnFont fontOf(const std::string& family, int weight = 400) {
    DrawnFont font;
    font.font.families = family;
    font.font.weight = weight;
    return font;
}

// A loaded font that has small letters only, each as wide as it is told.
class SmallLetters : public LoadedFont {
  public:
    explicit SmallLetters(double width) : width_(width) {}

    bool has(char32_t character) const override { return character >= U'a' && character <= U'z'; }
    std::optional<Weights> weights() const override { return own; }
    std::vector<Cluster> shape(std::string_view text, const Look& look) override {
        texts.emplace_back(text);
        looks.push_back(look);
        return {{0, text.size(), {}, width_, false, false, nullptr, {}}};
    }
    FontMetrics metrics() override {
        FontMetrics metrics;
        metrics.ascent = 2;
        return metrics;
    }

    std::vector<std::string> texts; // that were shaped
    std::vector<Look> looks;
    std::optional<Weights> own;

  private:
    double width_;
};

class DrawnFonts : public testing::Test {
  protected:
    std::vector<Cluster> shape(const std::string& text, const Font& font, bool rightToLeft = false) {
        DrawnTypesetter typesetter(fonts_, others_, loaded_);
        Line line;
        line.text = text;
        line.runs.push_back({text.size(), std::make_shared<const Font>(font)});
        line.rightToLeft = rightToLeft;
        return typesetter.shape(line);
    }
    std::vector<double> advances(const std::string& text, const Font& font) {
        std::vector<double> widths;
        for (const Cluster& cluster : shape(text, font))
            widths.push_back(cluster.advance);
        return widths;
    }

    BoxTypesetter others_;
    // The letters of the face.
    std::shared_ptr<SmallLetters> load(const Font& font, double width) {
        auto letters = std::make_shared<SmallLetters>(width);
        loaded_.push_back({font, letters});
        return letters;
    }

    std::vector<DrawnFont> fonts_;
    std::vector<LoadedFace> loaded_;
};

using Widths = std::vector<double>;

TEST_F(DrawnFonts, AreForTheirFamilyAlone) {
    fonts_.push_back(fontOf("Own"));
    fonts_.back().add(glyphOf(U"a", 2));
    EXPECT_EQ(advances("a", {"Own"}), Widths{2});
    EXPECT_EQ(advances("a", {"oWN"}), Widths{2});
    EXPECT_EQ(advances("a", {"Other"}), Widths{BoxTypesetter::kWidth});
}

TEST_F(DrawnFonts, AFamilyOfTheSystemThatIsNamedBeforeGoesFirst) {
    fonts_.push_back(fontOf("Own"));
    fonts_.back().add(glyphOf(U"a", 2));
    EXPECT_EQ(advances("a", {"Boxes,Own"}), Widths{BoxTypesetter::kWidth});
    EXPECT_EQ(advances("a", {"Nowhere,Own"}), Widths{2});
}

TEST_F(DrawnFonts, TheFirstGlyphThatFitsIsTaken) {
    fonts_.push_back(fontOf("Own"));
    fonts_.back().add(glyphOf(U"ffi", 3));
    fonts_.back().add(glyphOf(U"f", 1));
    fonts_.back().add(glyphOf(U"ff", 2));
    EXPECT_EQ(advances("fffi", {"Own"}), (Widths{1, 3}));
    EXPECT_EQ(shape("fffi", {"Own"})[1].begin, 1U);
    EXPECT_EQ(shape("fffi", {"Own"})[1].end, 4U);
}

TEST_F(DrawnFonts, WhatOneLacksIsForTheNextFamilyOrASign) {
    fonts_.push_back(fontOf("Own"));
    fonts_.back().add(glyphOf(U"a", 2));
    fonts_.back().add(glyphOf(U"", 7));
    EXPECT_EQ(advances("ab", {"Own"}), (Widths{2, 7}));
    const auto clusters = shape("a\u00e4b", {"Own,Boxes"});
    ASSERT_EQ(clusters.size(), 3U);
    EXPECT_EQ(clusters[1].advance, BoxTypesetter::kWidth);
    EXPECT_EQ(clusters[1].begin, 1U);
    EXPECT_EQ(clusters[2].begin, 3U);
    EXPECT_EQ(clusters[2].end, 4U);
}

TEST_F(DrawnFonts, KerningMovesTheSecondOfAPair) {
    fonts_.push_back(fontOf("Own"));
    const std::size_t a = fonts_.back().add(glyphOf(U"A", 2));
    const std::size_t v = fonts_.back().add(glyphOf(U"V", 2));
    fonts_.back().addKerning(Follow::Across, {a}, {v}, 0.25);
    fonts_.back().addKerning(Follow::Down, {a}, {v}, 0.5);
    EXPECT_EQ(advances("AVA", {"Own"}), (Widths{1.75, 2, 2}));
}

TEST_F(DrawnFonts, InAColumnLettersStandAsTheirScriptWantsIt) {
    fonts_.push_back(fontOf("Own"));
    for (const char32_t letter : U"A\u4e00\u3042\uac00\u300c\u30fc\u00e9\U00020000")
        if (letter != 0)
            fonts_.back().add(glyphOf({letter}, 2));
    const auto standing = [&](Upright upright) {
        DrawnTypesetter typesetter(fonts_, others_);
        Line line;
        line.text = "A\u4e00\u3042\uac00\u300c\u30fc\u00e9\U00020000";
        line.runs.push_back({line.text.size(), std::make_shared<const Font>(Font{"Own"})});
        line.vertical = true;
        line.upright = upright;
        std::string result;
        for (const Cluster& cluster : typesetter.shape(line))
            result += cluster.upright ? 'I' : '-';
        return result;
    };
    // Ideographs, kana and syllables stand; brackets, long dashes and letters of the West do not.
    EXPECT_EQ(standing(Upright::ByScript), "-III---I");
    EXPECT_EQ(standing(Upright::All), "IIIIIIII");
    EXPECT_EQ(standing(Upright::None), "--------");
}

TEST_F(DrawnFonts, TheNearestWeightIsTaken) {
    fonts_.push_back(fontOf("Own", 400));
    fonts_.back().add(glyphOf(U"a", 1));
    fonts_.push_back(fontOf("Own", 700));
    fonts_.back().add(glyphOf(U"a", 2));
    EXPECT_EQ(advances("a", {"Own", 300}), Widths{1});
    EXPECT_EQ(advances("a", {"Own", 600}), Widths{2});
}

TEST_F(DrawnFonts, FromTheRightLettersComeInTheOtherOrder) {
    fonts_.push_back(fontOf("Own"));
    fonts_.back().add(glyphOf(U"a", 1));
    fonts_.back().add(glyphOf(U"b", 2));
    const auto clusters = shape("ab", {"Own"}, true);
    EXPECT_EQ(clusters[0].advance, 2);
    EXPECT_EQ(clusters[1].advance, 1);
}

TEST_F(DrawnFonts, HaveMeasuresOfTheirOwn) {
    fonts_.push_back(fontOf("Own"));
    fonts_.back().metrics.ascent = 3;
    DrawnTypesetter typesetter(fonts_, others_);
    EXPECT_EQ(typesetter.metrics({"Own"}).ascent, 3);
    EXPECT_EQ(typesetter.metrics({"Boxes"}).ascent, 1);
}

TEST_F(DrawnFonts, LoadedOnesSetWhatTheyHaveAndTheNextFamilyTheRest) {
    const auto letters = load({"Own"}, 3);
    const auto clusters = shape("abXc\u200dd", {"Own,Boxes"});
    ASSERT_EQ(clusters.size(), 3U);
    EXPECT_EQ(letters->texts, (std::vector<std::string>{"ab", "c\u200dd"})) << "joiners stay with letters";
    EXPECT_EQ(clusters[0].end, 2U);
    EXPECT_EQ(clusters[1].advance, BoxTypesetter::kWidth);
    EXPECT_EQ(clusters[1].begin, 2U);
    EXPECT_EQ(clusters[2].begin, 3U);
    EXPECT_EQ(clusters[2].end, 8U);
    EXPECT_EQ(advances("aX", {"Own"}), (Widths{3, BoxTypesetter::kWidth})) << "the system has more letters";
}

TEST_F(DrawnFonts, LoadedOnesAreMadeBoldAndLeanWhereNothingNearerIsThere) {
    const auto regular = load({"Own"}, 1);
    shape("a", {"Own", 600, Slant::Italic});
    EXPECT_TRUE(regular->looks.back().embolden);
    EXPECT_TRUE(regular->looks.back().slant);
    shape("a", {"Own", 500}, true);
    EXPECT_FALSE(regular->looks.back().embolden);
    EXPECT_FALSE(regular->looks.back().slant);
    EXPECT_TRUE(regular->looks.back().rightToLeft);
    const auto boldItalic = load({"Own", 700, Slant::Italic}, 2);
    shape("a", {"Own", 600, Slant::Oblique});
    ASSERT_EQ(boldItalic->looks.size(), 1U);
    EXPECT_FALSE(boldItalic->looks.back().embolden);
    EXPECT_FALSE(boldItalic->looks.back().slant);
}

TEST_F(DrawnFonts, OfLoadedOnesThatAreAlikeTheFirstIsTakenAndBeforeDrawnOnes) {
    fonts_.push_back(fontOf("Own"));
    fonts_.back().add(glyphOf(U"a", 5));
    load({"Own"}, 2);
    load({"Own"}, 3);
    EXPECT_EQ(advances("a", {"oWN"}), Widths{2});
}

TEST_F(DrawnFonts, FamiliesOfTheSystemStandInForOnesThatHaveNoLetters) {
    loaded_.push_back({{"Own"}, nullptr, "Boxes"});
    EXPECT_EQ(advances("a", {"Own"}), Widths{BoxTypesetter::kWidth});
    EXPECT_EQ(others_.lines.back().runs.back().font->families, "Boxes,Own");
    DrawnTypesetter typesetter(fonts_, others_, loaded_);
    EXPECT_TRUE(typesetter.has("own"));
    EXPECT_FALSE(typesetter.has("Nowhere"));
    EXPECT_EQ(typesetter.metrics({"Own"}).ascent, 1);
}

TEST_F(DrawnFonts, AreForTheirCharactersAlone) {
    load({"Own"}, 2);
    loaded_.back().characters = {{U'a', U'c'}, {U'x', U'x'}};
    load({"Own"}, 3);
    loaded_.back().characters = {{U'e', U'g'}};
    load({"Next"}, 4);
    EXPECT_EQ(advances("cdxefa", {"Own,Next"}), (Widths{2, 4, 2, 3, 2}));
    EXPECT_EQ(advances("cd", {"Own"}), (Widths{2, BoxTypesetter::kWidth}));
    fonts_.push_back(fontOf("Drawn"));
    fonts_.back().add(glyphOf(U"a", 5));
    fonts_.back().add(glyphOf(U"b", 6));
    fonts_.back().add(glyphOf(U"", 7));
    fonts_.back().characters = {{U'a', U'a'}, {U'z', U'z'}};
    EXPECT_EQ(advances("abz", {"Drawn"}), (Widths{5, BoxTypesetter::kWidth, 7}));
    loaded_.push_back({{"Instead"}, nullptr, "Boxes", {}, {}, {{U'a', U'a'}}});
    EXPECT_EQ(advances("ab", {"Instead,Next"}), (Widths{BoxTypesetter::kWidth, 4}));
}

TEST_F(DrawnFonts, LettersThatAllLackAreSetTogether) {
    load({"Own"}, 2);
    shape("aXYZa", {"Own,Boxes"});
    EXPECT_EQ(others_.lines.back().text, "XYZ");
    EXPECT_EQ(others_.lines.back().runs.size(), 1U);
}

TEST_F(DrawnFonts, LoadedOnesOfSeveralWeightsAreForEachOfThem) {
    const auto light = load({"Own", 300}, 1);
    loaded_.back().weights = Weights{100, 350};
    const auto heavy = load({"Own", 400}, 2);
    loaded_.back().weights = Weights{400, 800};
    EXPECT_EQ(advances("a", {"Own", 350}), Widths{1});
    EXPECT_EQ(light->looks.back().weight, 350);
    EXPECT_EQ(advances("a", {"Own", 800}), Widths{2});
    EXPECT_EQ(heavy->looks.back().weight, 800);
    EXPECT_FALSE(heavy->looks.back().embolden) << "they are bold by themselves";
    shape("a", {"Own", 1000});
    EXPECT_EQ(heavy->looks.back().weight, 800);
}

TEST_F(DrawnFonts, LoadedOnesThatSayNothingOfWeightsHaveThoseOfTheirLetters) {
    const auto letters = load({"Own"}, 1);
    shape("a", {"Own", 700});
    EXPECT_TRUE(letters->looks.back().embolden);
    letters->own = Weights{200, 800};
    shape("a", {"Own", 700});
    EXPECT_EQ(letters->looks.back().weight, 700);
    EXPECT_FALSE(letters->looks.back().embolden);
    // What is said counts more.
    loaded_.back().weights = Weights{300, 300};
    shape("a", {"Own", 700});
    EXPECT_EQ(letters->looks.back().weight, 300);
    EXPECT_TRUE(letters->looks.back().embolden);
}

TEST_F(DrawnFonts, WhatIsAskedOfAxesComesBehindWhatTheirFontSays) {
    const auto letters = load({"Own"}, 1);
    loaded_.back().variations = "wdth=75";
    Font asked{"Own"};
    asked.variations = "wght=300,slnt=5";
    shape("a", asked);
    EXPECT_EQ(letters->looks.back().variations, "wdth=75,wght=300,slnt=5");
}

TEST_F(DrawnFonts, MeasuresAreThoseOfTheFirstThatIsForABlank) {
    load({"Own"}, 2);
    loaded_.back().characters = {{U'a', U'z'}};
    DrawnTypesetter typesetter(fonts_, others_, loaded_);
    EXPECT_EQ(typesetter.metrics({"Own,Boxes"}).ascent, 1);
    loaded_.back().characters = {{U' ', U'~'}};
    DrawnTypesetter other(fonts_, others_, loaded_);
    EXPECT_EQ(other.metrics({"Own,Boxes"}).ascent, 2);
}

TEST_F(DrawnFonts, MeasuresOfLoadedOnesAreTheirs) {
    load({"Own"}, 2);
    DrawnTypesetter typesetter(fonts_, others_, loaded_);
    EXPECT_EQ(typesetter.metrics({"Own"}).ascent, 2);
    EXPECT_TRUE(typesetter.has("OWN"));
}

} // namespace
