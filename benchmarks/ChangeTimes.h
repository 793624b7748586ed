// What changing one object of a drawing costs, up to the repainted pixels.
#pragma once

#include "benchmarks/Timing.h"
#include "easel/drawing/Drawing.h"
#include "easel/paint/pixels/Surface.h"

#include <vector>

namespace bench {

class ChangeTimes {
  public:
    // `toSurface` maps drawing units to pixels. The drawing and the surface must outlive the times.
    ChangeTimes(easel::drawing::Drawing& drawing, easel::paint::Surface& surface,
                const easel::drawing::Affine& toSurface);
    ChangeTimes(const ChangeTimes&) = delete;
    ChangeTimes& operator=(const ChangeTimes&) = delete;
    ~ChangeTimes();

    // Changes one more object, and takes it back.
    void measure();

    // Medians in seconds: of an undoable change of one object and the repaint of what it covers, and of
    // taking it back.
    double change() const { return median(changes_); }
    double undo() const { return median(undos_); }

  private:
    void recolorObject(std::size_t index);
    void repaint();

    easel::drawing::Drawing& drawing_;
    easel::paint::Surface& surface_;
    easel::drawing::Affine toSurface_;
    easel::drawing::Box dirty_;
    std::vector<double> changes_;
    std::vector<double> undos_;
};

} // namespace bench
