// Outlines of glyphs as their fonts have them, not fitted to any grid of pixels.
#pragma once

#include "easel/drawing/Path.h"
#include "easel/type/Face.h"
#include "easel/type/pango/GlyphPen.h"

#include <pango/pango.h>

#include <cstdint>
#include <memory>
#include <unordered_map>

namespace easel::type {

struct Unref {
    void operator()(gpointer object) const { g_object_unref(object); }
};
template <class Object> using Held = std::unique_ptr<Object, Unref>;

class GlyphOutlines {
  public:
    // `unitsPerEm`: those that the fonts are scaled to.
    explicit GlyphOutlines(double unitsPerEm);

    // In ems, down is positive. Copies share their memory.
    drawing::Path of(PangoFont* font, std::uint32_t glyph);
    // What the outlines are those of.
    FacePtr face(PangoFont* font) { return known(font).face; }
    // Makes all of them anew when they are asked for.
    void forget();

  private:
    struct KnownFont {
        Held<PangoFont> font; // keeps the address from being another font's
        drawing::Affine toEms;
        bool embolden = false;
        FacePtr face;
        std::unordered_map<std::uint32_t, drawing::Path> outlines;
    };

    KnownFont& known(PangoFont* font);

    double unitsPerEm_;
    GlyphPen pen_;
    std::unordered_map<PangoFont*, KnownFont> fonts_;
    std::size_t count_ = 0;
};

} // namespace easel::type
