// Opens every SVG file it is told of on standard input, one path a line, draws it and compares the picture
// with that of librsvg, and checks that saving it unchanged gives the file's own bytes.
//
// Prints one line for each file that cannot be opened or is saved differently, then the files whose pictures
// differ most, whose pictures are written to the folder for test output. Exits with 1 if a file was saved
// differently or its picture differs in more than a twentieth of its pixels though nothing of it was left
// out.
#include "tests/unit/export/OtherPictures.h"
#include "tests/unit/export/PictureDifference.h"

#include "easel/paint/RenderDrawing.h"
#include "easel/svg/Document.h"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <exception>
#include <fstream>
#include <iostream>
#include <sstream>

namespace {

using easel::drawing::Affine;
using easel::drawing::Drawing;
using easel::paint::Surface;

constexpr std::size_t kShown = 10;
constexpr double kMostApart = 0.05;

struct Compared {
    std::string file;
    PictureDifference difference;
};

struct Tally {
    int opened = 0;
    int refused = 0;
    int savedDifferently = 0;
    int partlyShown = 0;
    std::vector<Compared> compared;
};

// Icons are drawn at twice their size, posters small.
double scaleFor(const Drawing& drawing) {
    return std::max(drawing.width(), drawing.height()) <= 1000 ? 2 : 0.5;
}

Surface ours(const Drawing& drawing) {
    const double scale = scaleFor(drawing);
    Surface surface(static_cast<int>(std::ceil(drawing.width() * scale)),
                    static_cast<int>(std::ceil(drawing.height() * scale)));
    renderDrawing(drawing, surface.view(), Affine::scaling(scale, scale));
    return surface;
}

Surface librsvgs(const std::string& file, const Drawing& drawing) {
    return paintedByLibrsvg(file, drawing.width(), drawing.height(), scaleFor(drawing));
}

std::string contentOf(const std::string& file) {
    std::ostringstream content;
    content << std::ifstream(file, std::ios::binary).rdbuf();
    return content.str();
}

void look(const std::string& file, Tally& tally) {
    const auto read = easel::svg::readFile(file);
    if (!read) {
        ++tally.refused;
        std::cout << "refused: " << read.error().message() << "\n";
        return;
    }
    const auto& drawing = *read;
    ++tally.opened;
    if (easel::svg::toBytes(drawing) != contentOf(file)) {
        ++tally.savedDifferently;
        std::cout << "saved differently: " << file << "\n";
    }
    const PictureDifference difference = compare(ours(drawing), librsvgs(file, drawing));
    if (drawing.notes().empty())
        tally.compared.push_back({file, difference});
    else
        ++tally.partlyShown;
}

void showWorst(Tally& tally) {
    const auto worse = [](const Compared& a, const Compared& b) {
        return a.difference.apart > b.difference.apart;
    };
    std::sort(tally.compared.begin(), tally.compared.end(), worse);
    for (std::size_t i = 0; i < std::min(kShown, tally.compared.size()); ++i) {
        const Compared& compared = tally.compared[i];
        const auto read = easel::svg::readFile(compared.file);
        const auto& drawing = read.value();
        std::cout << compared.file << ": " << compared.difference.text() << "; "
                  << writePictures("gallery-" + std::to_string(i + 1), ours(drawing),
                                   librsvgs(compared.file, drawing))
                  << "\n";
    }
}

int compareGallery() {
    Tally tally;
    for (std::string file; std::getline(std::cin, file);)
        look(file, tally);
    showWorst(tally);
    const auto within = [&](double most) {
        return std::count_if(tally.compared.begin(), tally.compared.end(),
                             [&](const Compared& compared) { return compared.difference.apart <= most; });
    };
    std::printf("%d files opened, %d refused, %d saved differently, %d with parts that are not shown\n",
                tally.opened, tally.refused, tally.savedDifferently, tally.partlyShown);
    std::printf("%zu pictures compared: %td without a pixel a fifth of the range apart, %td with up to 1 %% "
                "of them\n",
                tally.compared.size(), within(0), within(0.01));
    const bool fine = tally.savedDifferently == 0 && within(kMostApart) == std::ssize(tally.compared);
    return fine ? 0 : 1;
}

} // namespace

int main() {
    try {
        return compareGallery();
    } catch (const std::exception& error) {
        std::fprintf(stderr, "%s\n", error.what());
        return 2;
    }
}
