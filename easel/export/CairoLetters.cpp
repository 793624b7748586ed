#include "easel/export/CairoLetters.h"

#include "easel/export/UnseenFont.h"

#include <cairo-ft.h>
#include <cairo.h>

#include <algorithm>
#include <cmath>

namespace easel::exports {

using drawing::Affine;
using drawing::Point;

namespace {

// Beyond these sizes, in points, letters are outlines: fonts and what reads them count in whole numbers.
constexpr double kSmallestLetter = 0.05;
constexpr double kLargestLetter = 4000;
constexpr double kFarthestLetter = 1e6;

struct DestroyPattern {
    void operator()(FcPattern* pattern) const { FcPatternDestroy(pattern); }
};
struct DestroyOptions {
    void operator()(cairo_font_options_t* options) const { cairo_font_options_destroy(options); }
};

// The file's own outlines, not fitted to any grid of pixels.
cairo_font_face_t* newFace(const type::Face& face) {
    const std::unique_ptr<FcPattern, DestroyPattern> pattern(FcPatternCreate());
    FcPatternAddString(pattern.get(), FC_FILE, reinterpret_cast<const FcChar8*>(face.file.c_str()));
    FcPatternAddInteger(pattern.get(), FC_INDEX, face.index);
    FcPatternAddBool(pattern.get(), FC_HINTING, FcFalse);
    return cairo_ft_font_face_create_for_pattern(pattern.get());
}

bool isUsual(const Affine& fromEms, const cairo_matrix_t& toPage) {
    const Affine onPage = Affine{toPage.xx, toPage.yx, toPage.xy, toPage.yy, 0, 0} *
                          Affine{fromEms.a, fromEms.b, fromEms.c, fromEms.d, 0, 0};
    const double largest = onPage.largestScale();
    const double smallest = std::abs(onPage.determinant()) / largest;
    return smallest >= kSmallestLetter && largest <= kLargestLetter;
}

bool isNear(Point p) {
    return std::abs(p.x) < kFarthestLetter && std::abs(p.y) < kFarthestLetter;
}

} // namespace

// Letters in one font. The characters and glyphs of each are a cluster of Cairo's.
struct CairoLetters::Run {
    std::unique_ptr<cairo_scaled_font_t, void (*)(cairo_scaled_font_t*)> font{nullptr,
                                                                              &cairo_scaled_font_destroy};
    std::size_t textBegin = 0;
    std::size_t textEnd = 0;
    std::vector<cairo_glyph_t> glyphs;
    std::vector<cairo_text_cluster_t> clusters;
    cairo_text_cluster_flags_t order{};

    Run(const type::SetText& text, std::size_t begin, std::size_t end)
        : textBegin(text.textBegin(begin)), textEnd(text.textBegin(end)) {
        for (std::size_t i = begin; i < end; ++i)
            clusters.push_back({static_cast<int>(text.letters[i].textEnd - text.textBegin(i)),
                                static_cast<int>(text.letters[i].glyphEnd - text.glyphBegin(i))});
    }
    void add(std::uint32_t glyph, Point at) { glyphs.push_back({glyph, at.x, at.y}); }
    // Those who look for words expect glyphs from left to right.
    void turn() {
        std::reverse(glyphs.begin(), glyphs.end());
        order = CAIRO_TEXT_CLUSTER_FLAG_BACKWARD;
    }
};

bool CairoLetters::possible() const {
    return cairo_surface_has_show_text_glyphs(cairo_get_target(cairo_)) != 0;
}

bool CairoLetters::show(const type::SetText& text, const Affine& toDrawing) {
    std::vector<Run> runs;
    std::size_t begin = 0;
    for (const type::SetRun& run : text.runs) {
        if (!run.face || !run.face->asInFile || run.face->file.empty())
            return false;
        const Affine fromEms = toDrawing * run.fromEms;
        Run& made = runs.emplace_back(text, begin, run.end);
        for (std::size_t i = begin; i < run.end; ++i) {
            const Point pen = toDrawing(text.letters[i].at);
            for (std::size_t g = text.glyphBegin(i); g < text.letters[i].glyphEnd; ++g)
                made.add(text.glyphs[g].number,
                         pen + fromEms.direction({text.glyphs[g].x, text.glyphs[g].y}));
        }
        if (run.rightToLeft)
            made.turn();
        if (!prepare(made, faceOf(run.face), fromEms * run.face->shape))
            return false;
        begin = run.end;
    }
    for (Run& run : runs)
        show(run, text);
    return true;
}

void CairoLetters::showNothing(const type::SetText& text, const Affine& toDrawing) {
    cairo_save(cairo_);
    cairo_set_source_rgba(cairo_, 0, 0, 0, kUnseenOpacity);
    std::size_t begin = 0;
    for (const type::SetRun& run : text.runs) {
        Run made(text, begin, run.end);
        for (std::size_t i = begin; i < run.end; ++i) {
            made.clusters[i - begin].num_glyphs = 1;
            made.add(unseenGlyph(static_cast<double>(text.letters[i].advance)),
                     toDrawing(text.letters[i].at));
        }
        if (run.rightToLeft)
            made.turn();
        if (prepare(made, faceOf(nullptr), toDrawing * run.fromEms))
            show(made, text);
        begin = run.end;
    }
    cairo_restore(cairo_);
}

// No face stands for the one that shows nothing.
cairo_font_face_t* CairoLetters::faceOf(const type::FacePtr& face) {
    const std::pair key(face ? face->file : std::string(), face ? face->index : 0);
    const auto [place, isNew] = faces_.try_emplace(key, nullptr, &cairo_font_face_destroy);
    if (isNew)
        place->second.reset(face ? newFace(*face) : newUnseenFont());
    return place->second.get();
}

// An error of a font that the context has would end all that it paints, so fonts are asked before.
bool CairoLetters::prepare(Run& run, cairo_font_face_t* face, const Affine& fromEms) const {
    cairo_matrix_t toPage;
    cairo_get_matrix(cairo_, &toPage);
    if (!isUsual(fromEms, toPage) ||
        !std::all_of(run.glyphs.begin(), run.glyphs.end(), [](const cairo_glyph_t& glyph) {
            return isNear({glyph.x, glyph.y});
        }))
        return false;
    const std::unique_ptr<cairo_font_options_t, DestroyOptions> options(cairo_font_options_create());
    cairo_font_options_set_hint_style(options.get(), CAIRO_HINT_STYLE_NONE);
    cairo_font_options_set_hint_metrics(options.get(), CAIRO_HINT_METRICS_OFF);
    const cairo_matrix_t size{fromEms.a, fromEms.b, fromEms.c, fromEms.d, 0, 0};
    run.font.reset(cairo_scaled_font_create(face, &size, &toPage, options.get()));
    cairo_text_extents_t extents;
    cairo_scaled_font_glyph_extents(run.font.get(), run.glyphs.data(), static_cast<int>(run.glyphs.size()),
                                    &extents);
    return cairo_scaled_font_status(run.font.get()) == CAIRO_STATUS_SUCCESS;
}

void CairoLetters::show(Run& run, const type::SetText& text) const {
    cairo_set_scaled_font(cairo_, run.font.get());
    cairo_show_text_glyphs(cairo_, text.text.data() + run.textBegin,
                           static_cast<int>(run.textEnd - run.textBegin), run.glyphs.data(),
                           static_cast<int>(run.glyphs.size()), run.clusters.data(),
                           static_cast<int>(run.clusters.size()), run.order);
}

} // namespace easel::exports
