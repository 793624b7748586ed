#include "easel/type/pango/FontMeasures.h"

#include <hb-ot.h>

namespace easel::type {

namespace {

double height(hb_font_t* font, hb_ot_metrics_tag_t tag, double unitsPerEm, double otherwise) {
    hb_position_t value = 0;
    return hb_ot_metrics_get_position(font, tag, &value) ? value / unitsPerEm : otherwise;
}

// Fonts that do not say it have it in their letters.
double xHeight(hb_font_t* font, double unitsPerEm) {
    hb_codepoint_t glyph = 0;
    hb_glyph_extents_t extents;
    if (hb_font_get_nominal_glyph(font, 'x', &glyph) && hb_font_get_glyph_extents(font, glyph, &extents))
        return extents.y_bearing / unitsPerEm;
    return FontMetrics().xHeight;
}

double baseline(hb_font_t* font, hb_ot_layout_baseline_tag_t tag, double unitsPerEm) {
    hb_position_t value = 0;
    hb_ot_layout_get_baseline_with_fallback(font, tag, HB_DIRECTION_LTR, HB_OT_TAG_DEFAULT_SCRIPT,
                                            HB_OT_TAG_DEFAULT_LANGUAGE, &value);
    return value / unitsPerEm;
}

} // namespace

FontMetrics metricsOf(hb_font_t* font, double unitsPerEm) {
    FontMetrics metrics;
    const auto heightOf = [&](hb_ot_metrics_tag_t tag, double otherwise) {
        return height(font, tag, unitsPerEm, otherwise);
    };
    hb_font_extents_t extents;
    if (hb_font_get_h_extents(font, &extents)) {
        metrics.ascent = extents.ascender / unitsPerEm;
        metrics.descent = extents.descender / unitsPerEm;
    }
    metrics.xHeight = heightOf(HB_OT_METRICS_TAG_X_HEIGHT, xHeight(font, unitsPerEm));
    metrics.hanging = baseline(font, HB_OT_LAYOUT_BASELINE_TAG_HANGING, unitsPerEm);
    metrics.mathematical = baseline(font, HB_OT_LAYOUT_BASELINE_TAG_MATH, unitsPerEm);
    metrics.ideographic = baseline(font, HB_OT_LAYOUT_BASELINE_TAG_IDEO_EMBOX_BOTTOM_OR_LEFT, unitsPerEm);
    metrics.underlineThickness = heightOf(HB_OT_METRICS_TAG_UNDERLINE_SIZE, metrics.underlineThickness);
    metrics.underline = heightOf(HB_OT_METRICS_TAG_UNDERLINE_OFFSET, metrics.underline);
    metrics.strikethroughThickness =
        heightOf(HB_OT_METRICS_TAG_STRIKEOUT_SIZE, metrics.strikethroughThickness);
    metrics.strikethrough = heightOf(HB_OT_METRICS_TAG_STRIKEOUT_OFFSET, metrics.strikethrough);
    return metrics;
}

} // namespace easel::type
