// Opens every SVG file below the folders given and saves it unchanged; says what went wrong and counts.
#include "easel/svg/Document.h"

#include <chrono>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>
#include <map>
#include <string>

namespace {

namespace fs = std::filesystem;
using namespace easel;

struct Counts {
    std::size_t files = 0, objects = 0, refused = 0, changed = 0;
    std::map<std::string, std::size_t> notes;
};

std::string bytesOf(const fs::path& file) {
    std::ifstream in(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(in), {}};
}

void check(const fs::path& file, Counts& counts) {
    ++counts.files;
    const auto result = svg::readFile(file);
    if (const auto* const failure = std::get_if<svg::Failure>(&result)) {
        ++counts.refused;
        std::cout << failure->message << '\n';
        return;
    }
    const auto& drawing = std::get<drawing::Drawing>(result);
    counts.objects += drawing.size();
    for (const std::string& note : drawing.notes())
        ++counts.notes[note];
    if (svg::toBytes(drawing) != bytesOf(file)) {
        ++counts.changed;
        std::cout << file.string() << ": saving changes the file\n";
    }
}

} // namespace

int main(int argc, char** argv) {
    Counts counts;
    const auto begin = std::chrono::steady_clock::now();
    for (int i = 1; i < argc; ++i)
        for (const auto& entry : fs::recursive_directory_iterator(argv[i]))
            if (entry.is_regular_file() && !entry.is_symlink() && entry.path().extension() == ".svg")
                check(entry.path(), counts);
    const std::chrono::duration<double> took = std::chrono::steady_clock::now() - begin;
    for (const auto& [note, files] : counts.notes)
        std::cout << files << " files: " << note << '\n';
    std::cout << counts.files << " files, " << counts.objects << " objects, " << counts.refused
              << " refused, " << counts.changed << " changed by saving, " << took.count() << " s\n";
    return counts.refused == 0 && counts.changed == 0 ? 0 : 1;
}
