// Rows of ellipses as SVG.
#include "benchmarks/DrawingFiles.h"

#include "easel/svg/Document.h"

#include <iomanip>
#include <sstream>
#include <stdexcept>
#include <utility>
#include <variant>

namespace bench {

using namespace easel;

namespace {

constexpr int kColumns = 200;
constexpr int kRaster = 16;

void writeGradient(std::ostream& svg, int number, int family) {
    svg << "<linearGradient id='g" << number << "'><stop offset='0' stop-color='#" << std::hex
        << std::setfill('0') << std::setw(6) << number << "'/><stop offset='1' stop-color='#" << std::setw(6)
        << family << std::dec << "'/></linearGradient>\n";
}

} // namespace

std::string drawingFile(int count, Fills fills) {
    std::ostringstream svg;
    svg << "<svg xmlns='http://www.w3.org/2000/svg' width='" << kColumns * kRaster << "' height='"
        << (count / kColumns + 1) * kRaster << "'>\n<defs>\n";
    const int gradients = fills == Fills::OwnGradients ? count : fills == Fills::OneGradient ? 1 : 0;
    for (int i = 0; i < gradients; ++i)
        writeGradient(svg, i, count + (fills == Fills::OneGradient ? 1 : 0));
    svg << "</defs>\n";
    for (int i = 0; i < count; ++i) {
        svg << "<ellipse cx='" << i % kColumns * kRaster + 8 << "' cy='" << i / kColumns * kRaster + 8
            << "' rx='9' ry='7' fill='";
        if (fills == Fills::Colors)
            svg << '#' << i % 10 << "80'/>\n";
        else
            svg << "url(#g" << (fills == Fills::OwnGradients ? i : 0) << ")'/>\n";
    }
    svg << "</svg>\n";
    return svg.str();
}

drawing::Drawing opened(std::string bytes) {
    auto drawing = svg::readBytes(std::move(bytes), "growing.svg");
    if (!drawing)
        throw std::logic_error(drawing.error().message());
    return std::move(*drawing);
}

} // namespace bench
