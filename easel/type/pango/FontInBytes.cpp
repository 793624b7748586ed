#include "easel/type/pango/FontInBytes.h"

#include "easel/type/Append.h"
#include "easel/type/pango/Embolden.h"
#include "easel/type/pango/FontAxes.h"
#include "easel/type/pango/FontMeasures.h"
#include "easel/type/pango/GlyphPen.h"

#include <hb-ft.h>
#include <pango/pango.h>

#include <algorithm>
#include <array>
#include <map>
#include <utility>

namespace easel::type {

using drawing::Affine;
using drawing::Path;

namespace {

// As elsewhere, text is shaped at one large size.
constexpr unsigned kShapedPixels = 1024; // pixels
constexpr double kShapedUnits = kShapedPixels * 64.0;
// How far others lean letters that do not lean by themselves.
constexpr double kSlant = 0.2;
// Bytes: of a font that is not packed, and of one packed so that its size cannot be told beforehand, which
// may grow to a hundred times its own.
constexpr std::size_t kLargest = std::size_t{32} << 20;
constexpr std::size_t kLargestPacked = std::size_t{1} << 20;

struct Closing {
    void operator()(FT_Library library) const { FT_Done_FreeType(library); }
    void operator()(FT_Face face) const { FT_Done_Face(face); }
    void operator()(hb_font_t* font) const { hb_font_destroy(font); }
    void operator()(hb_buffer_t* buffer) const { hb_buffer_destroy(buffer); }
    void operator()(PangoScriptIter* iterator) const { pango_script_iter_free(iterator); }
    void operator()(guint8* memory) const { g_free(memory); }
};
template <class Object> using Owned = std::unique_ptr<Object, Closing>;

// Whether the bytes are of a kind that is read, and not made to take all memory when they are unpacked.
bool mayBeFont(std::string_view bytes) {
    constexpr std::size_t kUnpackedSize = 16; // where files of WOFF say how large they are
    if (bytes.size() > kLargest)
        return false;
    if (bytes.starts_with("wOF2"))
        return bytes.size() <= kLargestPacked;
    if (bytes.starts_with("wOFF")) {
        std::size_t size = 0;
        for (std::size_t i = 0; i < 4 && kUnpackedSize + i < bytes.size(); ++i)
            size = size << 8 | static_cast<unsigned char>(bytes[kUnpackedSize + i]);
        return size <= kLargest;
    }
    constexpr std::array<std::string_view, 4> kBegins = {std::string_view("\0\1\0\0", 4), "true", "OTTO",
                                                         "ttcf"};
    return std::any_of(kBegins.begin(), kBegins.end(),
                       [bytes](std::string_view begin) { return bytes.starts_with(begin); });
}

// Bytes of a text that are set in one direction and one script.
struct Stretch {
    std::size_t begin = 0;
    std::size_t end = 0;
    int level = 0; // odd ones run from right to left
};

std::vector<Stretch> stretchesOf(std::string_view text, bool rightToLeft) {
    std::vector<Stretch> stretches;
    PangoDirection base = rightToLeft ? PANGO_DIRECTION_RTL : PANGO_DIRECTION_LTR;
    const Owned<guint8> levels(
        pango_log2vis_get_embedding_levels(text.data(), static_cast<int>(text.size()), &base));
    const Owned<PangoScriptIter> scripts(pango_script_iter_new(text.data(), static_cast<int>(text.size())));
    const char* const end = text.data() + text.size();
    const char* scriptEnd = nullptr;
    pango_script_iter_get_range(scripts.get(), nullptr, &scriptEnd, nullptr);
    std::size_t number = 0;
    for (const char* at = text.data(); at < end; at = g_utf8_next_char(at), ++number) {
        const auto place = static_cast<std::size_t>(at - text.data());
        const bool isNewScript = at >= scriptEnd && pango_script_iter_next(scripts.get()) != FALSE;
        if (isNewScript)
            pango_script_iter_get_range(scripts.get(), nullptr, &scriptEnd, nullptr);
        const int level = levels.get()[number];
        if (stretches.empty() || isNewScript || stretches.back().level != level)
            stretches.push_back({place, place, level});
        stretches.back().end = static_cast<std::size_t>(g_utf8_next_char(at) - text.data());
    }
    return stretches;
}

// From the order of the text to that from left to right: rule L2 of the algorithm for bidirectional text.
void reorder(std::vector<Stretch>& stretches) {
    int highest = 0;
    for (const Stretch& stretch : stretches)
        highest = std::max(highest, stretch.level);
    for (int level = highest; level > 0; --level) {
        const auto isLower = [level](const Stretch& stretch) { return stretch.level < level; };
        for (auto begin = stretches.begin(); begin != stretches.end();) {
            begin = std::find_if_not(begin, stretches.end(), isLower);
            const auto end = std::find_if(begin, stretches.end(), isLower);
            std::reverse(begin, end);
            begin = end;
        }
    }
}

class FontInBytes : public LoadedFont {
  public:
    explicit FontInBytes(std::string bytes) : bytes_(std::move(bytes)), buffer_(hb_buffer_create()) {}

    bool open();
    bool has(char32_t character) const override;
    std::optional<Weights> weights() const override { return axes_.weights(); }
    std::vector<Cluster> shape(std::string_view text, const Look& look) override;
    FontMetrics metrics() override { return metricsOf(font_.get(), kShapedUnits); }

  private:
    void shapeStretch(std::string_view text, const Stretch& stretch, const Look& look,
                      std::vector<Cluster>& clusters);
    const Path& outlineOf(std::uint32_t glyph, const Look& look);

    std::string bytes_;
    Owned<std::remove_pointer_t<FT_Library>> library_;
    Owned<std::remove_pointer_t<FT_Face>> ftFace_;
    Owned<hb_font_t> font_;
    Owned<hb_buffer_t> buffer_;
    GlyphPen pen_;
    FontAxes axes_;
    FacePtr face_ = std::make_shared<const Face>(); // one in no file
    // Of letters in the places on the axes where they are now: by glyph, and how it is made to look.
    std::map<std::pair<std::uint32_t, int>, Path> outlines_;
};

bool FontInBytes::open() {
    FT_Library library = nullptr;
    if (!mayBeFont(bytes_) || FT_Init_FreeType(&library) != 0)
        return false;
    library_.reset(library);
    FT_Face face = nullptr;
    if (FT_New_Memory_Face(library, reinterpret_cast<const FT_Byte*>(bytes_.data()),
                           static_cast<FT_Long>(bytes_.size()), 0, &face) != 0)
        return false;
    ftFace_.reset(face);
    if (!FT_IS_SCALABLE(face) || !face->charmap || FT_Set_Pixel_Sizes(face, 0, kShapedPixels) != 0)
        return false;
    font_.reset(hb_ft_font_create_referenced(face));
    hb_ft_font_set_load_flags(font_.get(), FT_LOAD_NO_HINTING | FT_LOAD_NO_BITMAP);
    axes_ = FontAxes(face);
    return true;
}

bool FontInBytes::has(char32_t character) const {
    hb_codepoint_t glyph = 0;
    return hb_font_get_nominal_glyph(font_.get(), character, &glyph) != 0;
}

std::vector<Cluster> FontInBytes::shape(std::string_view text, const Look& look) {
    if (axes_.setPlaces(look.weight, look.variations)) {
        hb_ft_font_changed(font_.get());
        outlines_.clear();
    }
    std::vector<Cluster> clusters;
    std::vector<Stretch> stretches = stretchesOf(text, look.rightToLeft);
    reorder(stretches);
    for (const Stretch& stretch : stretches)
        shapeStretch(text, stretch, look, clusters);
    return clusters;
}

void FontInBytes::shapeStretch(std::string_view text, const Stretch& stretch, const Look& look,
                               std::vector<Cluster>& clusters) {
    hb_buffer_t* const buffer = buffer_.get();
    const bool rightToLeft = stretch.level % 2 != 0;
    hb_buffer_clear_contents(buffer);
    hb_buffer_add_utf8(buffer, text.data(), static_cast<int>(text.size()),
                       static_cast<unsigned>(stretch.begin), static_cast<int>(stretch.end - stretch.begin));
    hb_buffer_set_direction(buffer, rightToLeft ? HB_DIRECTION_RTL : HB_DIRECTION_LTR);
    hb_buffer_set_language(buffer,
                           hb_language_from_string(look.language.empty() ? "en" : look.language.c_str(), -1));
    hb_buffer_guess_segment_properties(buffer);
    std::array<hb_feature_t, 3> plain{};
    constexpr std::array<const char*, 3> kLigatures = {"liga=0", "clig=0", "dlig=0"};
    for (std::size_t i = 0; i < plain.size(); ++i)
        hb_feature_from_string(kLigatures[i], -1, &plain[i]);
    hb_shape(font_.get(), buffer, plain.data(), look.ligatures ? 0 : unsigned{plain.size()});

    unsigned count = 0;
    const hb_glyph_info_t* const glyphs = hb_buffer_get_glyph_infos(buffer, &count);
    const hb_glyph_position_t* const places = hb_buffer_get_glyph_positions(buffer, &count);
    std::vector<std::size_t> begins{stretch.end};
    for (unsigned i = 0; i < count; ++i)
        begins.push_back(glyphs[i].cluster);
    std::sort(begins.begin(), begins.end());
    for (unsigned i = 0; i < count;) {
        Cluster cluster;
        cluster.begin = glyphs[i].cluster;
        cluster.end = *std::upper_bound(begins.begin(), begins.end(), cluster.begin);
        cluster.rightToLeft = rightToLeft;
        cluster.face = face_;
        for (; i < count && glyphs[i].cluster == cluster.begin; ++i) {
            const Affine place = Affine::translation(cluster.advance + places[i].x_offset / kShapedUnits,
                                                     -places[i].y_offset / kShapedUnits);
            append(cluster.outline, outlineOf(glyphs[i].codepoint, look), place);
            cluster.advance += places[i].x_advance / kShapedUnits;
        }
        clusters.push_back(std::move(cluster));
    }
}

const Path& FontInBytes::outlineOf(std::uint32_t glyph, const Look& look) {
    const auto [known, isNew] =
        outlines_.try_emplace({glyph, (look.embolden ? 1 : 0) + (look.slant ? 2 : 0)});
    if (isNew) {
        Path path = pen_.outlineOf(font_.get(), glyph);
        if (look.embolden)
            path = emboldened(path, kShapedUnits);
        const Affine slant = look.slant ? Affine{1, 0, kSlant, 1, 0, 0} : Affine();
        known->second = path.transformed(Affine::scaling(1 / kShapedUnits, -1 / kShapedUnits) * slant);
    }
    return known->second;
}

} // namespace

std::shared_ptr<LoadedFont> loadFont(std::string bytes) {
    auto font = std::make_shared<FontInBytes>(std::move(bytes));
    return font->open() ? font : nullptr;
}

} // namespace easel::type
