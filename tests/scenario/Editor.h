// The gradient editor in scenarios: opening it and reading what it shows.
#pragma once

#include "tests/scenario/Player.h"

#include <string>

namespace tests {

// The items of the editor.
enum EditorItem {
    kOk = 1,
    kCancel,
    kLabel,
    kRamp,
    kPosition,
    kColor,
    kPreview,
    kUpperSeparator,
    kTemplates,
    kLinear,
    kRadial,
    kLowerSeparator
};

// The ramp that the user sees begins this far inside its item and is this wide.
constexpr int kRampMargin = 6;
constexpr int kRampWidth = 400;
// The ramp's item is this high; pulling a stop two pixels below its bottom takes it off.
constexpr int kRampItemHeight = 48;

// Black, gray-ish and white gradients that many tests begin with: arguments of the command `gradient`.
inline const std::string kTwoStops = "1 0 0.5 0.5 0.5 0.5 0:0,0,0 1:65535,65535,65535";
inline const std::string kThreeStops = "1 0 0.5 0.5 0.5 0.5 0:0,0,0 0.5:65535,0,0 1:65535,65535,65535";

// Lines that make a rectangle "r" with that gradient and open the editor on it with an Option-click.
inline std::string openEditorOn(const std::string& gradient) {
    return "add rect r 100 50 200 100\ngradient r " + gradient +
           "\nkey option down\nclick 150 100\nkey option up\n";
}

// Plays the lines in the editor opened on that gradient, closes it with OK and prints the object last.
inline Played editWithOk(const std::string& gradient, const std::string& script) {
    return playWithTool(openEditorOn(gradient) + script + "hit 1\nprint object r\n");
}

// The stops of the object after the lines were played in the editor and confirmed.
inline nlohmann::json stopsAfter(const std::string& gradient, const std::string& script) {
    return editWithOk(gradient, script)["gradient"]["stops"];
}

inline nlohmann::json gradientAfter(const std::string& gradient, const std::string& script) {
    return editWithOk(gradient, script)["gradient"];
}

inline nlohmann::json itemOf(const nlohmann::json& dialog, int number) {
    for (const nlohmann::json& item : dialog.at("items"))
        if (item.at("item") == number)
            return item;
    return nullptr;
}

// What an item shows after the lines were played in the editor, which is then cancelled.
inline nlohmann::json itemAfter(const std::string& gradient, const std::string& script, int number) {
    return itemOf(playWithTool(openEditorOn(gradient) + script + "print dialog\nhit 2\n")["dialog"], number);
}

inline std::string positionAfter(const std::string& gradient, const std::string& script) {
    return itemAfter(gradient, script, kPosition).at("text");
}

// Where on the ramp's item a position is, as the words `H V` of a point in the ramp's upper half.
inline std::string onRamp(int pixelsFromRampStart) {
    return std::to_string(kRampMargin + pixelsFromRampStart) + " 10";
}

// A position as the record keeps it once it was set.
inline double narrowed(double position) {
    return static_cast<double>(static_cast<float>(position));
}

} // namespace tests
