// `easelbench drawings`: what growing drawings cost.
#include "benchmarks/Benches.h"
#include "benchmarks/ChangeTimes.h"
#include "benchmarks/DrawingFiles.h"
#include "benchmarks/HeapUse.h"
#include "benchmarks/Timing.h"
#include "easel/paint/RenderDrawing.h"
#include "easel/svg/Document.h"

#include <algorithm>
#include <map>

namespace bench {

namespace {

using namespace easel;

const std::string kTable = "Large drawings";
constexpr double kFrameLimit = 4; // milliseconds
constexpr double kMostGrowth = 1.5;
constexpr double kMostBytes = 600;

// The pixels of a window that shows the whole drawing, as one does that has just been opened.
struct FittedWindow {
    double zoom;
    paint::Surface surface;
};

FittedWindow fitted(const drawing::Drawing& drawing) {
    const double zoom = std::min(1920 / drawing.width(), 1080 / drawing.height());
    return {zoom, paint::Surface(static_cast<int>(drawing.width() * zoom) + 1,
                                 static_cast<int>(drawing.height() * zoom) + 1)};
}

// An area of the window's middle of so many pixels each way, painted anew with all that is in it.
double repaintTime(const drawing::Drawing& drawing, FittedWindow& window, int side) {
    const int x = window.surface.width() / 2;
    const int y = window.surface.height() / 2;
    const paint::SurfaceView area = window.surface.view().clippedTo({x, y, x + side, y + side});
    std::vector<double> times;
    times.reserve(kRuns);
    for (int i = 0; i < kRuns; ++i)
        times.push_back(secondsOf([&] {
            paint::renderDrawing(drawing, area, drawing::Affine::scaling(window.zoom, window.zoom), 1);
        }));
    return median(times);
}

void measureFitted(Report& report, const std::string& name, int count) {
    svg::ReadResult read = svg::readBytes(drawingFile(count, Fills::OneGradient), "fitted.svg");
    auto& drawing = std::get<drawing::Drawing>(read);
    FittedWindow window = fitted(drawing);
    const ChangeTimes times =
        changeTimes(drawing, window.surface, drawing::Affine::scaling(window.zoom, window.zoom));
    report.add(kTable, {name + ", fitted to the window", "change and repaint", times.change * 1e3, "ms",
                        kFrameLimit, Better::Lower});
    report.add(kTable, {name + ", fitted to the window", "repaint of 64 x 64 pixels",
                        repaintTime(drawing, window, 64) * 1e3, "ms", kFrameLimit, Better::Lower});
}

} // namespace

void runLargeDrawings(Report& report) {
    std::map<int, double> changes;
    for (const int count : {1000, 10000, 100000}) {
        const std::string name = std::to_string(count) + " objects";
        const std::string bytes = drawingFile(count, Fills::Colors);
        const double before = heapBytes();
        std::optional<svg::ReadResult> read;
        const double open = secondsOf([&] { read = svg::readBytes(bytes, "large.svg"); }, Clock::Wall);
        auto* drawing = std::get_if<drawing::Drawing>(&*read);
        if (drawing == nullptr)
            continue;
        const double memory = heapBytes() - before - static_cast<double>(bytes.size());
        paint::Surface surface(3200, 1800);
        const double paint = secondsOf([&] { paint::renderDrawing(*drawing, surface.view(), {}, 1); });
        const ChangeTimes times = changeTimes(*drawing, surface, {});
        changes[count] = times.change;
        report.add(kTable, {name, "open", open * 1e3, "ms"});
        report.add(kTable, {name, "first paint", paint * 1e3, "ms"});
        report.add(kTable,
                   {name, "change and repaint", times.change * 1e3, "ms", kFrameLimit, Better::Lower});
        report.add(kTable, {name, "undo and repaint", times.undo * 1e3, "ms", kFrameLimit, Better::Lower});
        report.add(kTable, {name, "memory beside paths", (memory - pathBytes(*drawing)) / count, "B/object",
                            kMostBytes, Better::Lower});
        measureFitted(report, name, count);
    }
    report.add(kTable, {"100000 against 1000 objects", "growth of a change", changes[100000] / changes[1000],
                        "times", kMostGrowth, Better::Lower});
}

} // namespace bench
