// A font that was read from bytes, for letters of a drawing that brings them along.
#pragma once

#include "easel/type/Typesetter.h"

#include <algorithm>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace easel::type {

// From one to another.
struct Weights {
    int least = 400;
    int most = 400;

    int nearest(int weight) const { return std::clamp(weight, least, most); }

    friend bool operator==(const Weights&, const Weights&) = default;
};

// How text is set in such a font.
struct Look {
    bool embolden = false;
    bool slant = false;
    bool ligatures = true;
    bool rightToLeft = false; // of the line as a whole
    std::string language{};   // as in xml:lang; empty: English
    int weight = 400;         // of letters that have several
    std::string variations{}; // as in Font
};

// May be used by one thread at a time.
class LoadedFont {
  public:
    LoadedFont() = default;
    LoadedFont(const LoadedFont&) = delete;
    LoadedFont& operator=(const LoadedFont&) = delete;
    virtual ~LoadedFont() = default;

    virtual bool has(char32_t character) const = 0;
    // That letters can have; nothing where they have one.
    virtual std::optional<Weights> weights() const { return std::nullopt; }
    // The clusters of text in this font alone, from left to right. What it lacks is its sign for that.
    virtual std::vector<Cluster> shape(std::string_view text, const Look& look) = 0;
    virtual FontMetrics metrics() = 0;
};

// What a drawing says of a font that it brings along.
struct LoadedFace {
    Font font;                           // the one family it is for, and how its letters look
    std::shared_ptr<LoadedFont> letters; // null: those of the system
    std::string systemFamily{};          // that stands in for it, where it has no letters
    std::optional<Weights>
        weights{};            // that it is for; nothing: that of `font`, and whatever letters can have
    std::string variations{}; // as in Font; those of what is asked for count more
    std::vector<Characters> characters{}; // that it is for; none: all
};

} // namespace easel::type
