// The input of a scenario to a dialog: pressing, typing, choosing.
#pragma once

#include "easel/play/Arguments.h"
#include "easel/play/Step.h"

#include <deque>

namespace easel::runtime {
class Dialog;
}

namespace easel::play {

class ScriptedUser;

class DialogInput {
  public:
    explicit DialogInput(ScriptedUser& user) : user_(user) {}

    // Plays a step of the scenario in the dialog, which may hit an item or begin to type. False for a command
    // that is not one for dialogs. Throws PlayError.
    bool play(runtime::Dialog& dialog, const Step& step);

    // Whether keys of an earlier step wait to be struck.
    bool isTyping() const { return !keys_.empty(); }
    // Strikes the next of them.
    void strikeKey(runtime::Dialog& dialog);

  private:
    using Play = void (DialogInput::*)(runtime::Dialog&, Arguments&);
    static Play playOf(const std::string& command);

    void hit(runtime::Dialog& dialog, Arguments& arguments);
    void press(runtime::Dialog& dialog, Arguments& arguments);
    void move(runtime::Dialog& dialog, Arguments& arguments);
    void release(runtime::Dialog& dialog, Arguments& arguments);
    void focus(runtime::Dialog& dialog, Arguments& arguments);
    void type(runtime::Dialog& dialog, Arguments& arguments);
    void erase(runtime::Dialog& dialog, Arguments& arguments);
    void set(runtime::Dialog& dialog, Arguments& arguments);
    void choose(runtime::Dialog& dialog, Arguments& arguments);

    void pressAt(runtime::Dialog& dialog, drawing::Point where);

    ScriptedUser& user_;
    int pressedControl_ = 0; // a control that is hit if the button is released in it, or 0
    std::deque<char32_t> keys_;
};

// The point that the arguments name in a dialog, in its local pixels: `H V`, or `item N H V` from the item's
// top-left corner. Pixels are whole.
drawing::Point pointInDialog(const runtime::Dialog& dialog, Arguments& arguments);

} // namespace easel::play
