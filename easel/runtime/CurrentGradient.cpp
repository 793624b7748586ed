// Clicks on a shape of its own.
#include "easel/runtime/CurrentGradient.h"

#include "easel/drawing/GradientCommands.h"
#include "easel/runtime/DrawingWindow.h"
#include "easel/runtime/Process.h"
#include "easel/runtime/ToolCalls.h"
#include "easel/runtime/User.h"

namespace easel::runtime {

namespace {

constexpr double kSide = 16;
constexpr drawing::Point kMiddle{kSide / 2, kSide / 2};

// Clicked once, holds no key, and sees and says nothing.
class UnseenUser : public User {
  public:
    MouseState mouse() override { return {kMiddle, false}; }
    MouseState waitWhileDown() override { return mouse(); }
    MouseState waitForMove(drawing::Point) override { return mouse(); }
    bool dragBegins(drawing::Point, double) override { return false; }
    bool keyIsDown(std::uint16_t) override { return false; }
    void present(DrawingWindow&) override {}
    void repaint(DrawingWindow&, const drawing::Box&) override {}
    void scrollTowardsMouse(DrawingWindow&) override {}
    void setCursor(DrawingWindow&, long) override {}
    void setDialogCursor(long) override {}
    void beep() override {}
    void tell(const files::Error&, const std::string&) override {}
    void dialogShown(Dialog&) override {}
    void dialogClosed(Dialog&) override {}
    std::int16_t nextHit(Dialog&) override { return 0; }
    Answer confirm(const Alert&) override { return Answer::No; }
    std::optional<RGBColor> pickColor(const std::string&, const RGBColor&) override { return std::nullopt; }
    void runDeletion(DeletionList&) override {}
};

// Puts another window in front, for a scope.
class FrontScope {
  public:
    FrontScope(Process& process, DrawingWindow& window) : process_(process), before_(process.activeWindow()) {
        process_.setActiveWindow(&window);
    }
    ~FrontScope() { process_.setActiveWindow(before_); }
    FrontScope(const FrontScope&) = delete;
    FrontScope& operator=(const FrontScope&) = delete;

  private:
    Process& process_;
    DrawingWindow* before_;
};

drawing::Drawing oneSquare() {
    drawing::Object square;
    square.kind = drawing::Kind::Rect;
    square.outline = drawing::rectanglePath({0, 0, kSide, kSide});
    square.fillPattern = drawing::FillPattern::SolidBlack;
    return {kSide, kSide, {sealed(std::move(square))}, nullptr, {}};
}

} // namespace

std::optional<CGradientData> currentGradientOf(const HostTool& tool, Process& process) {
    UnseenUser user;
    const UserScope asked(process, user);
    DrawingWindow window(oneSquare(), process);
    const FrontScope inFront(process, window);
    if (clickWithTool(tool, window, kMiddle) == ToolOutcome::Declined || window.drawing().size() == 0)
        return std::nullopt;
    const auto given = drawing::wholeGradientOf(*window.drawing().object(0));
    return given ? std::optional(given->record) : std::nullopt;
}

} // namespace easel::runtime
