// The typesetter itself, with the fonts that the program asks to be installed.
#include "easel/type/Typesetter.h"

#include <gtest/gtest.h>
#include <hb-ot.h>

#include <cmath>
#include <memory>

using namespace easel::type;

namespace {

constexpr const char* kFile = "/usr/share/fonts/truetype/dejavu/DejaVuSans.ttf";

Line lineOf(const std::string& text, const Font& font = {"DejaVu Sans"}) {
    Line line;
    line.text = text;
    line.runs.push_back({text.size(), std::make_shared<const Font>(font)});
    return line;
}

std::vector<Cluster> shaped(const Line& line) {
    Typesetter* const typesetter = easel::type::typesetter();
    EXPECT_NE(typesetter, nullptr);
    return typesetter ? typesetter->shape(line) : std::vector<Cluster>();
}

// The font as HarfBuzz reads it from its file, in the font's own units.
struct FontFile {
    std::unique_ptr<hb_blob_t, void (*)(hb_blob_t*)> blob{hb_blob_create_from_file(kFile), hb_blob_destroy};
    std::unique_ptr<hb_face_t, void (*)(hb_face_t*)> face{hb_face_create(blob.get(), 0), hb_face_destroy};
    std::unique_ptr<hb_font_t, void (*)(hb_font_t*)> font{hb_font_create(face.get()), hb_font_destroy};
    double unitsPerEm = static_cast<double>(hb_face_get_upem(face.get()));

    hb_codepoint_t glyph(char32_t character) const {
        hb_codepoint_t glyph = 0;
        hb_font_get_nominal_glyph(font.get(), character, &glyph);
        return glyph;
    }
};

// Adds up what a glyph of the file encloses, in square ems.
class AreaPen {
  public:
    AreaPen(const FontFile& file, hb_codepoint_t glyph) : unitsPerEm_(file.unitsPerEm) {
        const std::unique_ptr<hb_draw_funcs_t, void (*)(hb_draw_funcs_t*)> funcs{hb_draw_funcs_create(),
                                                                                 hb_draw_funcs_destroy};
        hb_draw_funcs_set_line_to_func(funcs.get(), lineTo, nullptr, nullptr);
        hb_draw_funcs_set_quadratic_to_func(funcs.get(), quadraticTo, nullptr, nullptr);
        hb_font_get_glyph_shape(file.font.get(), glyph, funcs.get(), this);
    }
    double area() const { return sum_ / unitsPerEm_ / unitsPerEm_; }

  private:
    using Point = easel::drawing::Point;

    void add(Point from, Point to) { sum_ += cross(from, to) / 2; }
    static Point point(float x, float y) { return {static_cast<double>(x), static_cast<double>(y)}; }
    static void lineTo(hb_draw_funcs_t*, void* pen, hb_draw_state_t* at, float x, float y, void*) {
        static_cast<AreaPen*>(pen)->add(point(at->current_x, at->current_y), point(x, y));
    }
    static void quadraticTo(hb_draw_funcs_t*, void* pen, hb_draw_state_t* at, float x1, float y1, float x,
                            float y, void*) {
        constexpr int kPieces = 100;
        const Point from = point(at->current_x, at->current_y);
        Point last = from;
        for (int i = 1; i <= kPieces; ++i) {
            const double t = static_cast<double>(i) / kPieces;
            const Point next =
                from * ((1 - t) * (1 - t)) + point(x1, y1) * (2 * t * (1 - t)) + point(x, y) * (t * t);
            static_cast<AreaPen*>(pen)->add(last, next);
            last = next;
        }
    }

    double unitsPerEm_;
    double sum_ = 0;
};

} // namespace

TEST(Typesetter, OutlinesAreAsLargeAsTheFontSays) {
    const FontFile file;
    for (const char32_t letter : {U'g', U'A', U'Q'}) {
        const auto clusters = shaped(lineOf(std::string(1, static_cast<char>(letter))));
        ASSERT_EQ(clusters.size(), 1u);
        hb_glyph_extents_t extents;
        ASSERT_TRUE(hb_font_get_glyph_extents(file.font.get(), file.glyph(letter), &extents));
        const auto box = clusters[0].outline.bounds();
        // Extents of the file are whole units, and those of the shaped size too, which is 512 times finer.
        const double unit = 1.5 / file.unitsPerEm;
        EXPECT_NEAR(box.left, extents.x_bearing / file.unitsPerEm, unit);
        EXPECT_NEAR(box.top, -extents.y_bearing / file.unitsPerEm, unit);
        EXPECT_NEAR(box.right, (extents.x_bearing + extents.width) / file.unitsPerEm, unit);
        EXPECT_NEAR(box.bottom, -(extents.y_bearing + extents.height) / file.unitsPerEm, unit);
        EXPECT_NEAR(clusters[0].advance,
                    hb_font_get_glyph_h_advance(file.font.get(), file.glyph(letter)) / file.unitsPerEm, 1e-5);
    }
}

TEST(Typesetter, CurvesBulgeAsTheFontSays) {
    const FontFile file;
    for (const char letter : {'O', 'S', 'g'}) {
        const AreaPen pen(file, file.glyph(static_cast<char32_t>(letter)));
        double area = 0;
        for (const auto& contour :
             easel::drawing::flatten(shaped(lineOf(std::string(1, letter)))[0].outline, 1e-5))
            for (std::size_t i = 0; i < contour.points.size(); ++i)
                area += cross(contour.points[i], contour.points[(i + 1) % contour.points.size()]) / 2;
        EXPECT_NEAR(std::abs(area), std::abs(pen.area()), 0.001 * std::abs(pen.area())) << letter;
    }
}

TEST(Typesetter, ClustersOfMixedDirectionsComeFromLeftToRight) {
    // Two Hebrew letters of two bytes each, a blank, a Latin letter.
    const std::string text = "\u05d0\u05d1 a";
    const auto begins = [&](bool rightToLeft) {
        Line line = lineOf(text);
        line.rightToLeft = rightToLeft;
        std::vector<std::size_t> result;
        for (const Cluster& cluster : shaped(line))
            result.push_back(cluster.begin);
        return result;
    };
    EXPECT_EQ(begins(false), (std::vector<std::size_t>{2, 0, 4, 5}));
    EXPECT_EQ(begins(true), (std::vector<std::size_t>{5, 4, 2, 0}));
}

TEST(Typesetter, MarksAreInTheClusterOfTheirLetter) {
    const auto clusters = shaped(lineOf("x\u0301y"));
    ASSERT_EQ(clusters.size(), 2u);
    EXPECT_EQ(clusters[0].begin, 0u);
    EXPECT_EQ(clusters[0].end, 3u);
    EXPECT_LT(clusters[0].outline.bounds().top, shaped(lineOf("x"))[0].outline.bounds().top);
}

TEST(Typesetter, BoldLettersHaveWiderStemsThanRegularOnes) {
    Font bold{"DejaVu Sans"};
    bold.weight = 700;
    EXPECT_GT(shaped(lineOf("l", bold))[0].outline.bounds().width(),
              1.2 * shaped(lineOf("l"))[0].outline.bounds().width());
}

TEST(Typesetter, SmallCapitalsAreCapitalsOfLessHeight) {
    Font small{"DejaVu Sans"};
    small.smallCaps = true;
    const double height = shaped(lineOf("x", small))[0].outline.bounds().height();
    EXPECT_LT(height, 0.95 * shaped(lineOf("X"))[0].outline.bounds().height());
    EXPECT_NEAR(shaped(lineOf("X", small))[0].outline.bounds().height(),
                shaped(lineOf("X"))[0].outline.bounds().height(), 1e-6);
}

TEST(Typesetter, UprightLettersOfAVerticalLineStandCentredOnIt) {
    Line line = lineOf("A");
    line.vertical = true;
    line.upright = Upright::All;
    const auto clusters = shaped(line);
    ASSERT_EQ(clusters.size(), 1u);
    EXPECT_TRUE(clusters[0].upright);
    const auto box = clusters[0].outline.bounds();
    const auto flat = shaped(lineOf("A"))[0].outline.bounds();
    EXPECT_NEAR(box.width(), flat.width(), 1e-6);
    EXPECT_NEAR(box.centre().x, 0, 0.01);
    EXPECT_GT(box.top, -0.1);
    EXPECT_LT(box.bottom, clusters[0].advance + 0.1);
    line.upright = Upright::None;
    EXPECT_FALSE(shaped(line)[0].upright);
}

TEST(Typesetter, MeasuresAreThoseOfTheFont) {
    const FontFile file;
    hb_font_extents_t extents;
    ASSERT_TRUE(hb_font_get_h_extents(file.font.get(), &extents));
    const FontMetrics metrics = typesetter()->metrics({"DejaVu Sans"});
    EXPECT_NEAR(metrics.ascent, extents.ascender / file.unitsPerEm, 1e-5);
    EXPECT_NEAR(metrics.descent, extents.descender / file.unitsPerEm, 1e-5);
    EXPECT_NEAR(metrics.xHeight, -shaped(lineOf("x"))[0].outline.bounds().top, 0.01);
}
