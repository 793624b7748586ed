// The user that a scenario plays.
#pragma once

#include "easel/play/DialogInput.h"
#include "easel/play/OpenQuestions.h"
#include "easel/play/Step.h"
#include "easel/runtime/User.h"

namespace easel::play {

class Session;

class ScriptedUser : public runtime::User {
  public:
    explicit ScriptedUser(Session& session) : session_(session) {}

    // What the steps make the user do. Each throws PlayError if it cannot be done now.
    void press(drawing::Point at);
    void moveTo(drawing::Point at);
    void release();
    void setOption(bool down) { optionDown_ = down; }
    void setShift(bool down) { shiftDown_ = down; }
    // Lets go of the button without a word, when the scenario has failed.
    void letGo() { mouse_.down = false; }

    bool holdsButton() const { return mouse_.down; }
    long beeps() const { return beeps_; }
    // What is open in front of the drawing.
    const OpenQuestions& questions() const { return questions_; }

    runtime::MouseState mouse() override { return mouse_; }
    runtime::MouseState waitWhileDown() override;
    runtime::MouseState waitForMove(drawing::Point from) override;
    bool dragBegins(drawing::Point from, double distance) override;
    bool keyIsDown(std::uint16_t code) override;
    void present(runtime::DrawingWindow&) override {}
    void repaint(runtime::DrawingWindow&, const drawing::Box&) override {}
    void scrollTowardsMouse(runtime::DrawingWindow&) override {}
    void setCursor(runtime::DrawingWindow&, long) override {}
    void setDialogCursor(long) override {}
    void beep() override { ++beeps_; }
    void tell(const files::Error& error, const std::string& outcome) override;
    void dialogShown(runtime::Dialog& dialog) override;
    void dialogClosed(runtime::Dialog& dialog) override;
    std::int16_t nextHit(runtime::Dialog& dialog) override;
    runtime::Answer confirm(const runtime::Alert& alert) override;
    std::optional<RGBColor> pickColor(const std::string& prompt, const RGBColor& start) override;
    void runDeletion(runtime::DeletionList& list) override;

  private:
    // Plays steps up to the next move or release.
    void waitForMouse();
    // Plays the step if it moves the mouse or releases its button, and says whether it did.
    bool movesOrLetsGo(const Step& step);

    Session& session_;
    runtime::MouseState mouse_;
    bool optionDown_ = false;
    bool shiftDown_ = false;
    long beeps_ = 0;
    OpenQuestions questions_;
    DialogInput input_{*this};
};

} // namespace easel::play
