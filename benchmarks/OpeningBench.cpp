// `easelbench drawings`: opening files that grow, and what their gradients cost.
#include "benchmarks/Benches.h"
#include "benchmarks/DrawingFiles.h"
#include "benchmarks/HeapUse.h"
#include "benchmarks/OpeningRun.h"
#include "benchmarks/Timing.h"

#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <map>
#include <set>
#include <string>
#include <vector>

namespace bench {

namespace {

using namespace easel;

const std::string kTable = "Files with gradients";
constexpr double kMostBytes = 600;
// Opening grows no faster than the file, but for what two measurements of the same differ by.
constexpr double kMostGrowth = 1.1;

// The first opening of the file, which makes its gradients.
double bytesBesidePaths(const std::string& bytes) {
    const double before = heapBytes();
    const drawing::Drawing drawing = opened(bytes);
    const double added = heapBytes() - before - static_cast<double>(bytes.size());
    return (added - pathBytes(drawing)) / static_cast<double>(drawing.size());
}

// A file that is there as long as it is measured.
class GrowingFile {
  public:
    GrowingFile(int count, Fills fills) : bytes_(drawingFile(count, fills)) {
        const std::string name =
            "easelbench-" + std::to_string(getpid()) + '-' + std::to_string(count) + ".svg";
        path_ = std::filesystem::temp_directory_path() / name;
        std::ofstream(path_, std::ios::binary) << bytes_;
    }
    GrowingFile(const GrowingFile&) = delete;
    GrowingFile& operator=(const GrowingFile&) = delete;
    ~GrowingFile() {
        std::error_code ignored;
        std::filesystem::remove(path_, ignored);
    }

    const std::string& bytes() const { return bytes_; }
    double megabytes() const { return static_cast<double>(bytes_.size()) / 1e6; }
    void open() { times_.push_back(openingTime(path_)); }
    double milliseconds() const { return median(times_) * 1e3; }

  private:
    std::string bytes_;
    std::filesystem::path path_;
    std::vector<double> times_;
};

void measureFiles(Report& report, Fills fills, const std::string& name) {
    std::map<int, GrowingFile> files;
    for (const int count : {1000, 10000, 100000})
        files.try_emplace(count, count, fills);
    for (int i = 0; i < kRuns; ++i)
        for (auto& [count, file] : files)
            file.open();
    const auto forItsSize = [](const GrowingFile& file) { return file.milliseconds() / file.megabytes(); };
    for (const auto& [count, file] : files) {
        const std::string work = std::to_string(count) + " objects, " + name;
        report.add(kTable, {work, "open", file.milliseconds(), "ms"});
        report.add(kTable, {work, "open, for its size", forItsSize(file), "ms/MB"});
        report.add(kTable, {work, "memory beside paths", bytesBesidePaths(file.bytes()), "B/object",
                            kMostBytes, Better::Lower});
    }
    report.add(kTable, {"100000 against 1000, " + name, "growth for its size",
                        forItsSize(files.at(100000)) / forItsSize(files.at(1000)), "times", kMostGrowth,
                        Better::Lower});
}

CGradientData commonRecord() {
    CGradientData record;
    record.SetAngle(77);
    return record;
}

// Gives objects equal gradients one after the other, each made anew as the gradient tool makes it.
void measureSharing(Report& report) {
    constexpr std::size_t kCount = 100000;
    constexpr std::size_t kGroup = 1000; // one alone is too quick to be timed
    std::vector<drawing::Object> objects(kCount);
    const CGradientData record = commonRecord();
    objects[0].setGradient(drawing::ObjectGradient(std::make_unique<CGradient>(record).release()));
    const auto give = [&](std::size_t from) {
        return secondsOf([&] {
            for (std::size_t i = from; i < from + kGroup; ++i)
                objects[i].setGradient(
                    drawing::ObjectGradient(std::make_unique<CGradient>(record).release()));
        });
    };
    std::vector<double> groups;
    for (std::size_t from = 1; from + kGroup <= kCount; from += kGroup)
        groups.push_back(give(from));
    std::set<const CGradient*> held;
    for (std::size_t i = 0; i + kGroup <= kCount; ++i)
        held.insert(drawing::gradientIn(objects[i].gradient));
    const std::size_t some = groups.size() / 10;
    const double first = median({groups.begin(), groups.begin() + static_cast<std::ptrdiff_t>(some)});
    const double last = median({groups.end() - static_cast<std::ptrdiff_t>(some), groups.end()});
    const std::string work = "100000 objects, one gradient";
    report.add(kTable, {work, "gradients held", static_cast<double>(held.size()), "", 1, Better::Lower});
    report.add(kTable, {work, "giving it to a first one", first / kGroup * 1e9, "ns"});
    report.add(kTable, {work, "giving it to the last one", last / kGroup * 1e9, "ns"});
    report.add(kTable, {work, "last against first", last / first, "times", kMostGrowth, Better::Lower});
}

} // namespace

void runOpening(Report& report) {
    measureFiles(report, Fills::OneGradient, "one gradient");
    measureFiles(report, Fills::OwnGradients, "own gradients");
    measureSharing(report);
}

} // namespace bench
