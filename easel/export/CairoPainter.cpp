// Drawings as calls of Cairo.
#include "easel/export/CairoPainter.h"

#include "easel/export/CairoGeometry.h"
#include "easel/export/CairoPath.h"
#include "easel/export/GradientRange.h"
#include "easel/export/GradientRepeats.h"
#include "easel/export/MaskAlpha.h"
#include "easel/paint/GroupRuns.h"
#include "easel/paint/ObjectPaintSource.h"

#include <cairo.h>

#include <algorithm>
#include <memory>

namespace easel::exports {

using drawing::Object;

namespace {

double level(std::uint16_t channel) {
    return channel / 65535.0;
}

// Restores the context's state at the end of a block.
class Saved {
  public:
    explicit Saved(cairo_t* cairo) : cairo_(cairo) { cairo_save(cairo); }
    Saved(const Saved&) = delete;
    Saved& operator=(const Saved&) = delete;
    ~Saved() { cairo_restore(cairo_); }

  private:
    cairo_t* cairo_;
};

cairo_pattern_t* newPattern(const drawing::LinearGeometry& line) {
    return cairo_pattern_create_linear(line.start.x, line.start.y, line.end.x, line.end.y);
}
cairo_pattern_t* newPattern(const drawing::RadialGeometry& circles) {
    return cairo_pattern_create_radial(circles.focus.x, circles.focus.y, circles.focusRadius,
                                       circles.centre.x, circles.centre.y, circles.radius);
}

void paintPattern(cairo_t* cairo, cairo_pattern_t* pattern, double opacity = 1) {
    cairo_set_source(cairo, pattern);
    cairo_paint_with_alpha(cairo, opacity);
}

bool isBlended(const drawing::ObjectPtr& object) {
    return blends(object->group);
}

cairo_operator_t operatorOf(drawing::BlendMode mode) {
    // In the order of the enumeration.
    static constexpr cairo_operator_t kOperators[drawing::kBlendModeCount] = {
        CAIRO_OPERATOR_OVER,          CAIRO_OPERATOR_MULTIPLY,       CAIRO_OPERATOR_SCREEN,
        CAIRO_OPERATOR_OVERLAY,       CAIRO_OPERATOR_DARKEN,         CAIRO_OPERATOR_LIGHTEN,
        CAIRO_OPERATOR_COLOR_DODGE,   CAIRO_OPERATOR_COLOR_BURN,     CAIRO_OPERATOR_HARD_LIGHT,
        CAIRO_OPERATOR_SOFT_LIGHT,    CAIRO_OPERATOR_DIFFERENCE,     CAIRO_OPERATOR_EXCLUSION,
        CAIRO_OPERATOR_HSL_HUE,       CAIRO_OPERATOR_HSL_SATURATION, CAIRO_OPERATOR_HSL_COLOR,
        CAIRO_OPERATOR_HSL_LUMINOSITY};
    return kOperators[static_cast<std::size_t>(mode)];
}

cairo_extend_t extendOf(drawing::Spread spread) {
    switch (spread) {
    case drawing::Spread::Reflect:
        return CAIRO_EXTEND_REFLECT;
    case drawing::Spread::Repeat:
        return CAIRO_EXTEND_REPEAT;
    case drawing::Spread::Pad:
        break;
    }
    return CAIRO_EXTEND_PAD;
}

cairo_fill_rule_t ruleOf(drawing::FillRule rule) {
    return rule == drawing::FillRule::EvenOdd ? CAIRO_FILL_RULE_EVEN_ODD : CAIRO_FILL_RULE_WINDING;
}

cairo_line_join_t joinOf(drawing::LineJoin join) {
    return join == drawing::LineJoin::Round   ? CAIRO_LINE_JOIN_ROUND
           : join == drawing::LineJoin::Bevel ? CAIRO_LINE_JOIN_BEVEL
                                              : CAIRO_LINE_JOIN_MITER;
}

cairo_line_cap_t capOf(drawing::LineCap cap) {
    return cap == drawing::LineCap::Round    ? CAIRO_LINE_CAP_ROUND
           : cap == drawing::LineCap::Square ? CAIRO_LINE_CAP_SQUARE
                                             : CAIRO_LINE_CAP_BUTT;
}

} // namespace

void CairoPainter::paint(const drawing::Drawing& drawing, const Progress& progress) {
    painted_ = PieceCount(progress, drawing.size());
    std::vector<drawing::ObjectPtr> objects;
    objects.reserve(drawing.size());
    drawing.forEach([&](const drawing::ObjectPtr& object) { objects.push_back(object); });
    blends_ = std::any_of(objects.begin(), objects.end(), isBlended);
    if (!drawing.blends())
        return paintWithin(nullptr, objects);
    apart([&] { paintWithin(nullptr, objects); },
          [&](cairo_pattern_t* pattern) { paintPattern(cairo_, pattern); });
}

template <class Content, class Use> void CairoPainter::apart(Content paint, Use use) {
    cairo_push_group(cairo_);
    paint();
    const Pattern pattern(cairo_pop_group(cairo_), &cairo_pattern_destroy);
    use(pattern.get());
}

void CairoPainter::paintWithin(const drawing::Group* parent, paint::ObjectSpan objects) {
    paint::forEachRun(
        parent, objects, [&](const drawing::Group& group, paint::ObjectSpan run) { paintGroup(group, run); },
        [&](const Object& object) { paintObject(object); });
}

void CairoPainter::paintGroup(const drawing::Group& group, paint::ObjectSpan objects) {
    if (drawing::validOpacity(group.opacity) == 0)
        return;
    if (group.blend == drawing::BlendMode::Normal)
        return clipped(group.clip.get(), [&] { paintContent(group, objects); });
    apart([&] { clipped(group.clip.get(), [&] { paintContent(group, objects); }); },
          [&](cairo_pattern_t* content) {
              const Saved saved(cairo_);
              cairo_set_operator(cairo_, operatorOf(group.blend));
              paintPattern(cairo_, content);
          });
}

void CairoPainter::paintContent(const drawing::Group& group, paint::ObjectSpan objects) {
    const double opacity = drawing::validOpacity(group.opacity);
    if (opacity >= 1 && !group.mask && !(blends_ && isLayer(group)))
        return paintObjects(group, objects);
    apart([&] { paintObjects(group, objects); },
          [&](cairo_pattern_t* content) {
              if (!group.mask)
                  return paintPattern(cairo_, content, opacity);
              const auto masked = [&] {
                  const Pattern mask = maskPattern(*group.mask);
                  cairo_set_source(cairo_, content);
                  cairo_mask(cairo_, mask.get());
              };
              if (opacity >= 1)
                  return masked();
              apart(masked, [&](cairo_pattern_t* result) { paintPattern(cairo_, result, opacity); });
          });
}

template <class Content> void CairoPainter::clipped(const drawing::ClipPath* clip, Content paint) {
    const Saved saved(cairo_);
    if (!clip || narrow(*clip))
        return paint();
    cairo_push_group(cairo_);
    paint();
    const Pattern content(cairo_pop_group(cairo_), &cairo_pattern_destroy);
    cairo_push_group_with_content(cairo_, CAIRO_CONTENT_ALPHA);
    paintMask(*clip);
    const Pattern mask(cairo_pop_group(cairo_), &cairo_pattern_destroy);
    cairo_set_source(cairo_, content.get());
    cairo_mask(cairo_, mask.get());
}

bool CairoPainter::narrow(const drawing::ClipPath& clip) {
    if (clip.shapes.size() != 1 || clip.clip || clip.shapes.front().clip)
        return false;
    addPath(clip.shapes.front().outline);
    cairo_set_fill_rule(cairo_, ruleOf(clip.shapes.front().rule));
    cairo_clip(cairo_);
    return true;
}

void CairoPainter::paintMask(const drawing::ClipPath& clip) {
    clipped(clip.clip.get(), [&] {
        for (const drawing::ClipShape& shape : clip.shapes)
            clipped(shape.clip.get(), [&] {
                addPath(shape.outline);
                cairo_set_fill_rule(cairo_, ruleOf(shape.rule));
                cairo_set_source_rgb(cairo_, 0, 0, 0);
                cairo_fill(cairo_);
            });
    });
}

void CairoPainter::paintObject(const Object& object) {
    inCairo_.check();
    painted_.next();
    const drawing::Style& style = drawing::styleOf(object);
    const double opacity = drawing::validOpacity(style.opacity);
    if (opacity == 0)
        return;
    const bool several =
        object.markers || (object.fillPattern != drawing::FillPattern::None && drawing::strokes(style));
    const bool together = opacity < 1 && several;
    if (together)
        cairo_push_group(cairo_);
    const double own = together ? 1 : opacity;
    if (style.first == drawing::PaintStep::Stroke)
        paintStroke(object, own);
    paintFill(object, own);
    if (style.first == drawing::PaintStep::Fill)
        paintStroke(object, own);
    if (object.markers)
        paintWithin(nullptr, *object.markers);
    if (together) {
        cairo_pop_group_to_source(cairo_);
        cairo_paint_with_alpha(cairo_, opacity);
    }
}

void CairoPainter::paintFill(const Object& object, double opacity) {
    const paint::HeldPaintSource source = paint::HeldPaintSource::ofFill(object);
    opacity *= drawing::validOpacity(drawing::styleOf(object).fillOpacity);
    if (source.visible() && source.picture())
        return paintPicture(object, *source.picture(), opacity);
    const type::SetText* const text = textOf(object);
    const bool asLetters = text && source.visible() && paintLetters(object, *text, source, opacity);
    if (source.visible() && !asLetters)
        withSource(source, opacity, [&] {
            addPath(object.outline);
            cairo_set_fill_rule(cairo_, ruleOf(object.fillRule));
            cairo_fill(cairo_);
        });
    const bool strokesAlone = !source.visible() && drawing::strokes(drawing::styleOf(object));
    if (text && !asLetters && (source.visible() || strokesAlone))
        letters_.showNothing(*text, drawing::unitsOf(object));
}

// Letters may lie over each other, and make one layer if they are faint.
bool CairoPainter::paintLetters(const Object& object, const type::SetText& text,
                                const paint::HeldPaintSource& source, double opacity) {
    bool shown = false;
    const auto show = [&] { shown = letters_.show(text, drawing::unitsOf(object)); };
    const paint::PaintSource own = source.source();
    const auto* const color = source.pattern() ? nullptr : std::get_if<drawing::ColorPaint>(&own);
    const auto opaque = [&] {
        if (!color)
            return withSource(source, 1, show);
        setSource(drawing::ColorPaint{color->color, 1}, 1);
        show();
    };
    opacity *= color ? drawing::validOpacity(color->opacity) : 1;
    if (opacity >= 1)
        opaque();
    else
        apart(opaque, [&](cairo_pattern_t* layer) { paintPattern(cairo_, layer, opacity); });
    return shown;
}

template <class Use>
void CairoPainter::withSource(const paint::HeldPaintSource& held, double opacity, Use use) {
    if (!held.pattern()) {
        setSource(held.source(), opacity);
        return use();
    }
    const auto patterned = [&] {
        if (setPattern(*held.pattern()))
            use();
    };
    if (opacity >= 1)
        return patterned();
    apart(patterned, [&](cairo_pattern_t* result) { paintPattern(cairo_, result, opacity); });
}

void CairoPainter::paintPicture(const Object& object, const drawing::PlacedPicture& picture, double opacity) {
    cairo_surface_t* const surface = pictures_.surfaceOf(picture.picture);
    if (!surface || !picture.toDrawing.invertible())
        return;
    const Saved saved(cairo_);
    addPath(object.outline);
    cairo_set_fill_rule(cairo_, ruleOf(object.fillRule));
    cairo_clip(cairo_);
    const cairo_matrix_t own = matrixOf(picture.toDrawing);
    cairo_transform(cairo_, &own);
    cairo_set_source_surface(cairo_, surface, 0, 0);
    // On pixels, the clip alone is to make its sides smooth. A PDF keeps the picture's own file as long as
    // nothing goes on beyond it.
    if (cairo_surface_get_type(cairo_get_target(cairo_)) == CAIRO_SURFACE_TYPE_IMAGE)
        cairo_pattern_set_extend(cairo_get_source(cairo_), CAIRO_EXTEND_PAD);
    cairo_pattern_set_filter(cairo_get_source(cairo_),
                             picture.smooth ? CAIRO_FILTER_GOOD : CAIRO_FILTER_NEAREST);
    cairo_paint_with_alpha(cairo_, opacity);
}

void CairoPainter::paintStroke(const Object& object, double opacity) {
    const paint::HeldPaintSource source = paint::HeldPaintSource::ofStroke(object);
    const drawing::Stroke& stroke = drawing::styleOf(object).stroke;
    const drawing::Affine units = drawing::penUnitsOf(object);
    if (!source.visible() || !units.invertible() || !std::isfinite(stroke.width))
        return;
    withSource(source, opacity * drawing::validOpacity(stroke.opacity),
               [&] { strokeOutline(object, units); });
}

void CairoPainter::strokeOutline(const Object& object, const drawing::Affine& units) {
    const drawing::Stroke& stroke = drawing::styleOf(object).stroke;
    const Saved saved(cairo_);
    addPath(object.outline);
    // The path is already fixed in the page's space; what is changed now is the shape of the pen.
    const cairo_matrix_t own = matrixOf(units);
    cairo_transform(cairo_, &own);
    cairo_set_line_width(cairo_, stroke.width);
    cairo_set_line_join(cairo_, joinOf(stroke.join));
    cairo_set_line_cap(cairo_, capOf(stroke.cap));
    cairo_set_miter_limit(cairo_, stroke.miterLimit);
    cairo_set_dash(cairo_, stroke.dashes.data(), static_cast<int>(stroke.dashes.size()), stroke.dashOffset);
    cairo_stroke(cairo_);
}

void CairoPainter::setSource(const paint::PaintSource& source, double opacity) {
    if (const auto* gradient = std::get_if<const drawing::Gradient*>(&source)) {
        std::optional<drawing::RampStop> only = onlyColor(**gradient);
        if (!only)
            only = meanOfRepeats(**gradient, shownBox(cairo_));
        if (!only)
            return setGradient(withinUnitRange(**gradient), opacity);
        return setSource(drawing::ColorPaint{only->color, only->opacity}, opacity);
    }
    const auto& paint = std::get<drawing::ColorPaint>(source);
    cairo_set_source_rgba(cairo_, level(paint.color.red), level(paint.color.green), level(paint.color.blue),
                          shareOf(paint.color) * drawing::validOpacity(paint.opacity) * opacity);
}

void CairoPainter::setGradient(const drawing::Gradient& gradient, double opacity) {
    const Pattern pattern(
        std::visit([](const auto& geometry) { return newPattern(geometry); }, gradient.geometry),
        &cairo_pattern_destroy);
    for (const drawing::RampStop& stop : gradient.ramp.stops())
        cairo_pattern_add_color_stop_rgba(
            pattern.get(), stop.position, level(stop.color.red), level(stop.color.green),
            level(stop.color.blue), shareOf(stop.color) * drawing::validOpacity(stop.opacity) * opacity);
    const cairo_matrix_t toGradient = matrixOf(gradient.toDrawing.inverse());
    cairo_pattern_set_matrix(pattern.get(), &toGradient);
    cairo_pattern_set_extend(pattern.get(), extendOf(gradient.spread));
    cairo_set_source(cairo_, pattern.get());
}

double CairoPainter::shareOf(const drawing::Rgb16& color) const {
    return luminanceAsAlpha_ ? luminanceOf(color) : 1;
}

void CairoPainter::addPath(const drawing::Path& path) {
    cairo_new_path(cairo_);
    appendPath(cairo_, path);
}

} // namespace easel::exports
