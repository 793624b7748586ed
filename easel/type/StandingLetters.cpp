// The scripts of East Asia, whose letters have stood since they were written in columns (Unicode Standard
// Annex 50), but for their brackets and dashes, which turn with the line.
#include "easel/type/StandingLetters.h"

#include <algorithm>
#include <array>

namespace easel::type {

namespace {

struct Letters {
    char32_t first;
    char32_t last;
};

constexpr std::array<Letters, 12> kStanding = {{{0x1100, 0x11FF},
                                                {0x2E80, 0xA4CF},
                                                {0xA960, 0xA97F},
                                                {0xAC00, 0xD7FF},
                                                {0xF900, 0xFAFF},
                                                {0xFE10, 0xFE1F},
                                                {0xFE30, 0xFE48},
                                                {0xFF01, 0xFF60},
                                                {0xFFE0, 0xFFE7},
                                                {0x1B000, 0x1B16F},
                                                {0x1F000, 0x1FAFF},
                                                {0x20000, 0x3FFFD}}};
constexpr std::array<Letters, 10> kTurning = {{{0x3008, 0x3011},
                                               {0x3014, 0x301F},
                                               {0x3030, 0x3030},
                                               {0x30A0, 0x30A0},
                                               {0x30FC, 0x30FC},
                                               {0xFF08, 0xFF09},
                                               {0xFF0D, 0xFF0D},
                                               {0xFF1A, 0xFF1E},
                                               {0xFF3B, 0xFF3F},
                                               {0xFF5B, 0xFF60}}};

template <std::size_t count> bool isIn(const std::array<Letters, count>& all, char32_t letter) {
    return std::any_of(all.begin(), all.end(),
                       [letter](const Letters& each) { return letter >= each.first && letter <= each.last; });
}

} // namespace

bool stands(char32_t letter, Upright upright) {
    if (upright != Upright::ByScript)
        return upright == Upright::All;
    return isIn(kStanding, letter) && !isIn(kTurning, letter);
}

} // namespace easel::type
