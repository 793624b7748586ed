// What turns text into glyphs. It lives in a library of its own, which is loaded when the first text is met:
// fonts cost time that drawings without text do not have to wait for.
#pragma once

#include "easel/drawing/Path.h"
#include "easel/type/Face.h"
#include "easel/type/Font.h"

#include <cstddef>
#include <memory>
#include <string>
#include <vector>

namespace easel::type {

struct FontRun {
    std::size_t end = 0; // in bytes of the text; the run begins where the one before it ends
    std::shared_ptr<const Font> font;
};

// A line of text, in UTF-8, every byte of which is in a run.
struct Line {
    std::string text;
    std::vector<FontRun> runs;
    bool rightToLeft = false; // of the line as a whole
    bool vertical = false;
    Upright upright = Upright::ByScript;
};

// What is set as one: a letter with its marks, a ligature. All measures are in ems.
struct Cluster {
    std::size_t begin = 0; // bytes of the text
    std::size_t end = 0;
    // The pen stands at the origin, the line runs to the right, and down is positive. In a vertical line,
    // which is this line turned to the right, an upright cluster has its outline as it stands on the page.
    drawing::Path outline;
    double advance = 0;
    bool rightToLeft = false;
    bool upright = false;
    FacePtr face; // null: outlines that no face stands for
    std::vector<Glyph> glyphs;
};

class LoadedFont;

class Typesetter {
  public:
    Typesetter() = default;
    Typesetter(const Typesetter&) = delete;
    Typesetter& operator=(const Typesetter&) = delete;
    virtual ~Typesetter() = default;

    // The clusters from left to right. May be called from any thread.
    virtual std::vector<Cluster> shape(const Line& line) = 0;
    // Of the first of the font's families that is there.
    virtual FontMetrics metrics(const Font& font) = 0;
    // Whether there is a family of that name, or the name stands for one that is.
    virtual bool has(const std::string& family) = 0;
    // A font out of the bytes of its file; null if they are of no kind that is read.
    virtual std::shared_ptr<LoadedFont> load(std::string&& /*bytes*/) { return nullptr; }
};

// The one of the program; null if its library cannot be loaded.
Typesetter* typesetter();

// What the library exports: a function that gives the typesetter, which lives as long as the program.
using TypesetterFunction = Typesetter* (*)();
inline constexpr const char* kTypesetterSymbol = "easelTypesetter";

} // namespace easel::type
