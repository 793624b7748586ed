#include "easel/type/pango/GlyphOutlines.h"

#include "easel/type/pango/Embolden.h"

#include <pango/pangofc-font.h>

#include <utility>

namespace easel::type {

using drawing::Affine;
using drawing::Path;

namespace {

// Enough for every letter of the fonts of a drawing, and for one page of ideographs.
constexpr std::size_t kMostOutlines = 20000;

FcPattern* patternOf(PangoFont* font) {
    return PANGO_IS_FC_FONT(font) ? pango_fc_font_get_pattern(PANGO_FC_FONT(font)) : nullptr;
}

// A font without letters of the slant that was asked for slants its upright ones.
Affine slantOf(PangoFont* font) {
    FcMatrix* matrix = nullptr;
    FcPattern* const pattern = patternOf(font);
    if (!pattern || FcPatternGetMatrix(pattern, FC_MATRIX, 0, &matrix) != FcResultMatch)
        return {};
    return {matrix->xx, matrix->yx, matrix->xy, matrix->yy, 0, 0};
}

bool says(PangoFont* font, const char* property) {
    FcBool value = FcFalse;
    FcPattern* const pattern = patternOf(font);
    return pattern && FcPatternGetBool(pattern, property, 0, &value) == FcResultMatch && value != FcFalse;
}

std::string textIn(PangoFont* font, const char* property) {
    FcChar8* value = nullptr;
    FcPattern* const pattern = patternOf(font);
    if (!pattern || FcPatternGetString(pattern, property, 0, &value) != FcResultMatch)
        return {};
    return reinterpret_cast<const char*>(value);
}

bool isInstance(PangoFont* font) {
    unsigned int axes = 0;
    hb_font_get_var_coords_normalized(pango_font_get_hb_font(font), &axes);
    return axes > 0;
}

// Small capitals come as the font in a smaller size.
double sizeOf(PangoFont* font) {
    PangoFontDescription* const description = pango_font_describe_with_absolute_size(font);
    const int size = pango_font_description_get_size(description);
    pango_font_description_free(description);
    return size;
}

FacePtr faceOf(PangoFont* font, const Affine& slant, double unitsPerEm) {
    Face face;
    FcPattern* const pattern = patternOf(font);
    face.family = textIn(font, FC_FAMILY);
    face.file = textIn(font, FC_FILE);
    if (pattern)
        FcPatternGetInteger(pattern, FC_INDEX, 0, &face.index);
    const double scale = sizeOf(font) / unitsPerEm;
    face.shape = Affine::scaling(scale, -scale) * slant * Affine::scaling(1, -1);
    face.asInFile =
        says(font, FC_SCALABLE) && !says(font, FC_COLOR) && !says(font, FC_EMBOLDEN) && !isInstance(font);
    return std::make_shared<const Face>(std::move(face));
}

} // namespace

GlyphOutlines::GlyphOutlines(double unitsPerEm) : unitsPerEm_(unitsPerEm) {}

GlyphOutlines::KnownFont& GlyphOutlines::known(PangoFont* font) {
    KnownFont& known = fonts_[font];
    if (!known.font) {
        known.font.reset(PANGO_FONT(g_object_ref(font)));
        const Affine slant = slantOf(font);
        known.toEms = Affine::scaling(1 / unitsPerEm_, -1 / unitsPerEm_) * slant;
        known.embolden = says(font, FC_EMBOLDEN);
        known.face = faceOf(font, slant, unitsPerEm_);
    }
    return known;
}

void GlyphOutlines::forget() {
    fonts_.clear();
    count_ = 0;
}

Path GlyphOutlines::of(PangoFont* font, std::uint32_t glyph) {
    if (count_ >= kMostOutlines)
        forget();
    KnownFont& own = known(font);
    const auto [place, isNew] = own.outlines.try_emplace(glyph);
    if (isNew) {
        ++count_;
        Path path = pen_.outlineOf(pango_font_get_hb_font(font), glyph);
        if (own.embolden)
            path = emboldened(path, unitsPerEm_);
        place->second = path.transformed(own.toEms);
        place->second.shrinkToFit();
    }
    return place->second;
}

} // namespace easel::type
