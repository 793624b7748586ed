// `easelbench drawings`: what growing drawings cost.
#include "benchmarks/Benches.h"
#include "benchmarks/ChangeTimes.h"
#include "benchmarks/DrawingFiles.h"
#include "benchmarks/HeapUse.h"
#include "benchmarks/Timing.h"
#include "easel/paint/RenderDrawing.h"

#include <algorithm>
#include <map>
#include <optional>
#include <string>
#include <vector>

namespace bench {

namespace {

using namespace easel;

const std::string kTable = "Large drawings";
constexpr int kChanges = 51;
constexpr double kFrameLimit = 4; // milliseconds
constexpr double kKeptLimit = 5;  // that keeping what is unsaved may take of the window's time
constexpr double kMostGrowth = 1.5;
constexpr double kMostBytes = 600;

// A drawing of ellipses at 100 %, from the first opening on.
class AtFullSize {
  public:
    explicit AtFullSize(int count) : count_(count) {
        const std::string bytes = drawingFile(count, Fills::Colors);
        const double before = heapBytes();
        open_ = secondsOf([&] { drawing_.emplace(opened(bytes)); }, Clock::Wall);
        bytes_ = heapBytes() - before - static_cast<double>(bytes.size()) - pathBytes(*drawing_);
        paint_ = secondsOf([&] { paint::renderDrawing(*drawing_, surface_.view(), {}, 1); });
        times_.emplace(*drawing_, surface_, drawing::Affine());
        snapshot_ = secondsOf([&] { drawing_->snapshot(); }, Clock::Wall);
    }

    ChangeTimes& times() { return *times_; }
    void addTo(Report& report, const std::string& name) const {
        report.add(kTable, {name, "open", open_ * 1e3, "ms"});
        report.add(kTable, {name, "first paint", paint_ * 1e3, "ms"});
        report.add(kTable,
                   {name, "change and repaint", times_->change() * 1e3, "ms", kFrameLimit, Better::Lower});
        report.add(kTable,
                   {name, "undo and repaint", times_->undo() * 1e3, "ms", kFrameLimit, Better::Lower});
        report.add(kTable,
                   {name, "snapshot taken and dropped", snapshot_ * 1e3, "ms", kKeptLimit, Better::Lower});
        report.add(kTable,
                   {name, "memory beside paths", bytes_ / count_, "B/object", kMostBytes, Better::Lower});
    }

  private:
    int count_;
    std::optional<drawing::Drawing> drawing_;
    paint::Surface surface_{3200, 1800};
    double open_ = 0;
    double bytes_ = 0;
    double paint_ = 0;
    double snapshot_ = 0;
    std::optional<ChangeTimes> times_;
};

// A drawing in a window that shows all of it, as one does that has just been opened.
class Fitted {
  public:
    explicit Fitted(int count)
        : drawing_(opened(drawingFile(count, Fills::OneGradient))),
          zoom_(std::min(1920 / drawing_.width(), 1080 / drawing_.height())),
          surface_(static_cast<int>(drawing_.width() * zoom_) + 1,
                   static_cast<int>(drawing_.height() * zoom_) + 1),
          times_(drawing_, surface_, drawing::Affine::scaling(zoom_, zoom_)) {}

    ChangeTimes& times() { return times_; }
    void addTo(Report& report, const std::string& name) {
        const std::string fitted = name + ", fitted to the window";
        report.add(kTable,
                   {fitted, "change and repaint", times_.change() * 1e3, "ms", kFrameLimit, Better::Lower});
        report.add(kTable, {fitted, "repaint of 64 x 64 pixels", repaintTime(64) * 1e3, "ms", kFrameLimit,
                            Better::Lower});
    }

  private:
    // An area of the window's middle of so many pixels each way, painted anew with all that is in it.
    double repaintTime(int side) {
        const int x = surface_.width() / 2;
        const int y = surface_.height() / 2;
        const paint::SurfaceView area =
            surface_.view().clippedTo({.left = x, .top = y, .right = x + side, .bottom = y + side});
        std::vector<double> times;
        times.reserve(kRuns);
        for (int i = 0; i < kRuns; ++i)
            times.push_back(secondsOf(
                [&] { paint::renderDrawing(drawing_, area, drawing::Affine::scaling(zoom_, zoom_), 1); }));
        return median(times);
    }

    drawing::Drawing drawing_;
    double zoom_;
    paint::Surface surface_;
    ChangeTimes times_;
};

} // namespace

// Drawings of different sizes take turns, so that what the machine does besides meets all alike.
void runLargeDrawings(Report& report) {
    std::map<int, AtFullSize> atFullSize;
    std::map<int, Fitted> fitted;
    for (const int count : {1000, 10000, 100000}) {
        atFullSize.try_emplace(count, count);
        fitted.try_emplace(count, count);
    }
    for (int i = 0; i < kChanges; ++i) {
        for (auto& [count, drawing] : atFullSize)
            drawing.times().measure();
        for (auto& [count, drawing] : fitted)
            drawing.times().measure();
    }
    for (auto& [count, drawing] : atFullSize) {
        const std::string name = std::to_string(count) + " objects";
        drawing.addTo(report, name);
        fitted.at(count).addTo(report, name);
    }
    report.add(kTable, {"100000 against 1000 objects", "growth of a change",
                        atFullSize.at(100000).times().change() / atFullSize.at(1000).times().change(),
                        "times", kMostGrowth, Better::Lower});
}

} // namespace bench
