#include "benchmarks/OpeningRun.h"

#include "benchmarks/DrawingFiles.h"
#include "benchmarks/Timing.h"
#include "easel/svg/Document.h"

#include <cstdio>
#include <iomanip>
#include <memory>
#include <optional>
#include <sstream>
#include <stdexcept>
#include <string>
#include <variant>

namespace bench {

namespace {

using namespace easel;

constexpr int kSmallDrawing = 100; // objects

struct PipeCloser {
    void operator()(std::FILE* pipe) const { pclose(pipe); }
};

} // namespace

bool printOpeningTime(const std::filesystem::path& file) {
    for (const Fills fills : {Fills::OneGradient, Fills::OwnGradients})
        static_cast<void>(opened(drawingFile(kSmallDrawing, fills)));
    std::optional<files::Result<drawing::Drawing>> read;
    const double time = secondsOf([&] { read.emplace(svg::readFile(file)); });
    if (!*read)
        return false;
    std::printf("%.9f\n", time);
    return true;
}

double openingTime(const std::filesystem::path& file) {
    const std::filesystem::path program = std::filesystem::read_symlink("/proc/self/exe");
    std::ostringstream command;
    command << std::quoted(program.string(), '\'') << " open " << std::quoted(file.string(), '\'');
    const std::unique_ptr<std::FILE, PipeCloser> pipe(popen(command.str().c_str(), "r"));
    double time = 0;
    if (!pipe || std::fscanf(pipe.get(), "%lf", &time) != 1)
        throw std::runtime_error("cannot measure: " + command.str());
    return time;
}

} // namespace bench
