// Text as glyphs of its fonts, so that what Cairo writes can be searched and copied.
#pragma once

#include "easel/drawing/Geometry.h"
#include "easel/type/SetText.h"

#include <map>
#include <memory>
#include <string>
#include <utility>
#include <vector>

using cairo_t = struct _cairo;
using cairo_font_face_t = struct _cairo_font_face;

namespace easel::exports {

class CairoLetters {
  public:
    // The context must outlive this.
    explicit CairoLetters(cairo_t* cairo) : cairo_(cairo) {}

    // Whether what the context writes to has text at all.
    bool possible() const;
    // Paints the letters with the context's source, where `toDrawing` takes the units of the text to the
    // context's. False, with nothing painted, if glyphs would not show what the letters' outlines do.
    bool show(const type::SetText& text, const drawing::Affine& toDrawing);
    // Puts characters that do not show in the letters' places.
    void showNothing(const type::SetText& text, const drawing::Affine& toDrawing);

  private:
    using Face = std::unique_ptr<cairo_font_face_t, void (*)(cairo_font_face_t*)>;
    struct Run;
    cairo_font_face_t* faceOf(const type::FacePtr& face);
    // False if it cannot be shown.
    bool prepare(Run& run, cairo_font_face_t* face, const drawing::Affine& fromEms) const;
    void show(Run& run, const type::SetText& text) const;

    cairo_t* cairo_;
    std::map<std::pair<std::string, int>, Face> faces_; // by file and number
};

} // namespace easel::exports
