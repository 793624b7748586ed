// The benchmark program: `easelbench pixels|drawings JSON-FILE`, `easelbench counted WORKLOAD`, and what it
// starts itself, `easelbench open SVG-FILE`.
#include "benchmarks/Benches.h"
#include "benchmarks/OpeningRun.h"

#include <cstdio>

int main(int count, char** arguments) {
    const std::string command = count > 1 ? arguments[1] : "";
    const std::string operand = count > 2 ? arguments[2] : "";
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
