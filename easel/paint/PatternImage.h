// Patterns as images to paint with.
#pragma once

#include "easel/drawing/Pattern.h"
#include "easel/paint/picture/Image.h"
#include "easel/paint/pixels/Surface.h"

#include <memory>
#include <optional>

namespace easel::paint {

// The cell that was painted last, since neighbors mostly show the same pattern. A pattern that is kept here
// must live as long.
class PatternCells {
  public:
    struct Cell {
        const drawing::Pattern* pattern = nullptr;
        int width = 0;
        int height = 0;
        std::shared_ptr<Surface> pixels;
    };
    // Paints the cell so many pixels wide and high, unless it is there already.
    std::shared_ptr<Surface> cell(const drawing::Pattern& pattern, int width, int height);

  private:
    Cell last_;
};

// What of a pattern shows in an area of a surface. Where all that is filled lies in one cell, or a cell has
// very many pixels, that is painted as it is; else the cell is painted once, at the resolution of the
// surface, and repeated.
class PatternImage {
  public:
    // `filled` is where the pattern is used in the drawing, and `area` what of it is painted now.
    PatternImage(const drawing::Pattern& pattern, const drawing::Box& filled, const PixelRect& area,
                 const drawing::Affine& toSurface, PatternCells& cells);

    // In drawing coordinates; null if nothing shows.
    const Image* image() const { return image_ ? &*image_ : nullptr; }

  private:
    void repeatCell(const drawing::Pattern& pattern, int width, int height, PatternCells& cells);
    void paintCells(const drawing::Pattern& pattern, const PixelRect& area, const drawing::Affine& toSurface);
    void setImage(const drawing::Affine& toDrawing, bool repeats);

    std::shared_ptr<Surface> pixels_;
    std::optional<Image> image_;
};

} // namespace easel::paint
