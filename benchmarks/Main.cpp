// The benchmark program: `easelbench pixels|drawings JSON-FILE`, `easelbench counted WORKLOAD`, and what it
// starts itself, `easelbench open SVG-FILE`.
#include "benchmarks/Benches.h"
#include "benchmarks/OpeningRun.h"

#include <cstdio>
#include <exception>

namespace {

int run(const std::string& command, const std::string& operand) {
    if (command == "counted")
        return bench::runCounted(operand) ? 0 : 2;
    if (command == "open")
        return bench::printOpeningTime(operand) ? 0 : 2;
    bench::Report report;
    if (command == "pixels") {
        bench::runPixels(report);
    } else if (command == "drawings") {
        bench::runLargeDrawings(report);
        bench::runOpening(report);
    } else {
        std::fprintf(stderr, "usage: easelbench pixels|drawings JSON-FILE, or easelbench counted WORKLOAD\n");
        return 2;
    }
    if (!operand.empty())
        report.save(operand);
    return report.allMet() ? 0 : 1;
}

} // namespace

int main(int count, char** arguments) {
    try {
        return run(count > 1 ? arguments[1] : "", count > 2 ? arguments[2] : "");
    } catch (const std::exception& error) {
        std::fprintf(stderr, "easelbench: %s\n", error.what());
        return 2;
    }
}
