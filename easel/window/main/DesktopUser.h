// The person at the desktop, as the host sees it.
#pragma once

#include "easel/runtime/User.h"
#include "easel/window/dialogs/ShownDialogs.h"

namespace easel::window {

class OpenCanvases;
struct Interaction;

// Passes every question on to what can answer it.
class DesktopUser : public runtime::User {
  public:
    // Interaction and canvases outlive the user. The picture is that of an entry in a dialog's popup.
    DesktopUser(Interaction& interaction, const OpenCanvases& canvases, EntryPicture picture);

    runtime::MouseState mouse() override;
    runtime::MouseState waitWhileDown() override;
    runtime::MouseState waitForMove(drawing::Point from) override;
    bool dragBegins(drawing::Point from, double distance) override;
    bool keyIsDown(std::uint16_t code) override;
    void present(runtime::DrawingWindow& window) override;
    void repaint(runtime::DrawingWindow& window, const drawing::Box& area) override;
    void scrollTowardsMouse(runtime::DrawingWindow& window) override;
    void setCursor(runtime::DrawingWindow& window, long id) override;
    void setDialogCursor(long id) override;
    void beep() override;
    void tell(const files::Error& error, const std::string& outcome) override;
    void dialogShown(runtime::Dialog& dialog) override;
    void dialogClosed(runtime::Dialog& dialog) override;
    std::int16_t nextHit(runtime::Dialog& dialog) override;
    runtime::Answer confirm(const runtime::Alert& alert) override;
    std::optional<RGBColor> pickColor(const std::string& prompt, const RGBColor& start) override;
    void runDeletion(runtime::DeletionList& list) override;

  private:
    Interaction& interaction_;
    const OpenCanvases& canvases_;
    ShownDialogs shownDialogs_;
};

} // namespace easel::window
