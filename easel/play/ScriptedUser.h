// The user that a scenario plays.
#pragma once

#include "easel/interface/User.h"
#include "easel/play/DialogHands.h"
#include "easel/play/OpenQuestions.h"
#include "easel/play/Step.h"

namespace easel::play {

class Session;

class ScriptedUser : public host::User {
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

    host::MouseState mouse() override { return mouse_; }
    host::MouseState waitWhileDown() override;
    host::MouseState waitForMove(drawing::Point from) override;
    bool dragBegins(drawing::Point from, double distance) override;
    bool keyIsDown(std::uint16_t code) override;
    void present(host::DrawingWindow&) override {}
    void repaint(host::DrawingWindow&, const drawing::Box&) override {}
    void scrollTowardsMouse(host::DrawingWindow&) override {}
    void setCursor(host::DrawingWindow&, long) override {}
    void setDialogCursor(long) override {}
    void beep() override { ++beeps_; }
    void tell(const std::string& message) override;
    void dialogShown(host::Dialog& dialog) override;
    void dialogClosed(host::Dialog& dialog) override;
    std::int16_t nextHit(host::Dialog& dialog) override;
    host::Answer confirm(const host::Alert& alert) override;
    std::optional<RGBColor> pickColor(const std::string& prompt, const RGBColor& start) override;
    void runDeletion(host::DeletionList& list) override;

  private:
    // Plays steps up to the next move or release.
    void waitForMouse();
    // Plays the step if it moves the mouse or releases its button, and says whether it did.
    bool movesOrLetsGo(const Step& step);

    Session& session_;
    host::MouseState mouse_;
    bool optionDown_ = false;
    bool shiftDown_ = false;
    long beeps_ = 0;
    OpenQuestions questions_;
    DialogHands hands_{*this};
};

} // namespace easel::play
