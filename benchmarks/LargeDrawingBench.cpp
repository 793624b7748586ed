// `easelbench drawings`: what growing drawings cost.
#include "benchmarks/Benches.h"
#include "benchmarks/Timing.h"
#include "easel/paint/RenderDrawing.h"
#include "easel/svg/Document.h"

#include <malloc.h>

#include <map>
#include <sstream>
#include <stdexcept>

namespace bench {

namespace {

using namespace easel;

const std::string kTable = "Large drawings";
constexpr int kChanges = 51;
constexpr double kFrameLimit = 4; // milliseconds
constexpr double kMostGrowth = 1.5;
constexpr double kMostBytes = 600;

// Ellipses that overlap their neighbors a little, on as large a sheet as they need.
std::string svgOf(int count) {
    std::ostringstream svg;
    constexpr int kColumns = 200;
    svg << "<svg xmlns='http://www.w3.org/2000/svg' width='3200' height='" << (count / kColumns + 1) * 16
        << "'>\n";
    for (int i = 0; i < count; ++i)
        svg << "<ellipse cx='" << i % kColumns * 16 + 8 << "' cy='" << i / kColumns * 16 + 8
            << "' rx='9' ry='7' fill='#" << i % 10 << "80'/>\n";
    svg << "</svg>\n";
    return svg.str();
}

double heapBytes() {
    return static_cast<double>(mallinfo2().uordblks);
}

drawing::ObjectPtr recolored(const drawing::Object& object, int step) {
    auto copy = std::make_shared<drawing::Object>(object);
    copy->fill = drawing::ColorPaint{{static_cast<std::uint16_t>(step * 1000), 0, 65535}, 1};
    return copy;
}

struct Times {
    double change;
    double undo;
};

// An undoable change of one object and the repaint of what it covers, and the same for taking it back.
Times timesOf(drawing::Drawing& drawing, paint::Surface& surface) {
    std::vector<double> changes;
    std::vector<double> undos;
    drawing::Box dirty;
    drawing.setChangeListener([&](const drawing::Box& area) { dirty.add(area); });
    const auto repaint = [&] {
        const paint::PixelBox box{static_cast<int>(dirty.left) - 1, static_cast<int>(dirty.top) - 1,
                                  static_cast<int>(dirty.right) + 2, static_cast<int>(dirty.bottom) + 2};
        paint::renderDrawing(drawing, surface.view().clippedTo(box), {}, 1);
        dirty = {};
    };
    for (int i = 0; i < kChanges; ++i) {
        const std::size_t index = static_cast<std::size_t>(i) * 17 % drawing.size();
        changes.push_back(secondsOf([&] {
            drawing.prepareUndo(1);
            const drawing::ObjectPtr object = recolored(*drawing.object(index), i);
            drawing.erase(index);
            drawing.insert(index, object);
            drawing.closeUndo();
            repaint();
        }));
        bool undone = false;
        undos.push_back(secondsOf([&] {
            undone = drawing.undo();
            repaint();
        }));
        if (!undone)
            throw std::logic_error("there was nothing to undo");
    }
    drawing.setChangeListener({});
    return {median(changes), median(undos)};
}

} // namespace

void runLargeDrawings(Report& report) {
    std::map<int, double> changes;
    for (const int count : {1000, 10000, 100000}) {
        const std::string name = std::to_string(count) + " objects";
        const std::string bytes = svgOf(count);
        const double before = heapBytes();
        std::optional<svg::ReadResult> read;
        const double open = secondsOf([&] { read = svg::readBytes(bytes, "large.svg"); }, Clock::Wall);
        auto* drawing = std::get_if<drawing::Drawing>(&*read);
        if (drawing == nullptr)
            continue;
        const double memory = heapBytes() - before - static_cast<double>(bytes.size());
        double pathBytes = 0;
        drawing->forEach([&](const drawing::ObjectPtr& object) {
            pathBytes += static_cast<double>(object->outline.points().size() * sizeof(drawing::Point) +
                                             object->outline.verbs().size());
        });
        paint::Surface surface(3200, 1800);
        const double paint = secondsOf([&] { paint::renderDrawing(*drawing, surface.view(), {}, 1); });
        const Times times = timesOf(*drawing, surface);
        changes[count] = times.change;
        report.add(kTable, {name, "open", open * 1e3, "ms"});
        report.add(kTable, {name, "first paint", paint * 1e3, "ms"});
        report.add(kTable,
                   {name, "change and repaint", times.change * 1e3, "ms", kFrameLimit, Better::Lower});
        report.add(kTable, {name, "undo and repaint", times.undo * 1e3, "ms", kFrameLimit, Better::Lower});
        report.add(kTable, {name, "memory beside paths", (memory - pathBytes) / count, "B/object", kMostBytes,
                            Better::Lower});
    }
    report.add(kTable, {"100000 against 1000 objects", "growth of a change", changes[100000] / changes[1000],
                        "times", kMostGrowth, Better::Lower});
}

} // namespace bench
