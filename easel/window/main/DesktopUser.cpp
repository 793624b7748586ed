// Answers the host's questions with windows, dialogs and the mouse.
#include "easel/window/main/DesktopUser.h"

#include "easel/window/canvas/Canvas.h"
#include "easel/window/canvas/OpenCanvases.h"
#include "easel/window/dialogs/ColorPicker.h"
#include "easel/window/dialogs/DeletionWindow.h"
#include "easel/window/dialogs/Questions.h"
#include "easel/window/waiting/CoreTexts.h"
#include "easel/window/waiting/Interaction.h"
#include "easel/window/waiting/TellProblem.h"
#include "host/Drawing.h"

#include <QApplication>

#include <utility>

namespace easel::window {

DesktopUser::DesktopUser(Interaction& interaction, const OpenCanvases& canvases, EntryPicture picture)
    : interaction_(interaction), canvases_(canvases), shownDialogs_(interaction, std::move(picture)) {}

runtime::MouseState DesktopUser::mouse() {
    return interaction_.pointer.mouse();
}

runtime::MouseState DesktopUser::waitWhileDown() {
    return interaction_.pointer.waitWhileDown();
}

runtime::MouseState DesktopUser::waitForMove(drawing::Point from) {
    return interaction_.pointer.waitForMove(from);
}

bool DesktopUser::dragBegins(drawing::Point from, double distance) {
    return interaction_.pointer.dragBegins(from, distance);
}

bool DesktopUser::keyIsDown(std::uint16_t code) {
    switch (code) {
    case runtime::kShiftKey:
        return interaction_.keys.shiftIsDown();
    case runtime::kOptionKey:
        return interaction_.keys.optionIsDown();
    default:
        return false;
    }
}

void DesktopUser::present(runtime::DrawingWindow& window) {
    if (Canvas* canvas = canvases_.of(window))
        canvas->presentNow();
}

void DesktopUser::repaint(runtime::DrawingWindow& window, const drawing::Box&) {
    if (Canvas* canvas = canvases_.of(window))
        canvas->marked();
}

void DesktopUser::scrollTowardsMouse(runtime::DrawingWindow&) {
    interaction_.pointer.scrollTowardsMouse();
}

void DesktopUser::setCursor(runtime::DrawingWindow& window, long id) {
    if (Canvas* canvas = canvases_.of(window))
        canvas->showCursor(id);
}

// Dialogs show the arrow wherever their controls have no cursor of their own, which is what 0 asks for.
void DesktopUser::setDialogCursor(long) {}

void DesktopUser::beep() {
    QApplication::beep();
}

void DesktopUser::tell(const files::Error& error, const std::string& outcome) {
    tellProblem(inUsersLanguage(error, outcome), interaction_.dialogs);
}

void DesktopUser::dialogShown(runtime::Dialog& dialog) {
    shownDialogs_.show(dialog);
}

void DesktopUser::dialogClosed(runtime::Dialog& dialog) {
    shownDialogs_.close(dialog);
}

std::int16_t DesktopUser::nextHit(runtime::Dialog& dialog) {
    return shownDialogs_.nextHit(dialog);
}

runtime::Answer DesktopUser::confirm(const runtime::Alert& alert) {
    return ask(alert, interaction_.dialogs.parentForNext(), interaction_.dialogs);
}

std::optional<RGBColor> DesktopUser::pickColor(const std::string& prompt, const RGBColor& start) {
    const std::optional<drawing::Rgb16> color = askForColor(
        QString::fromStdString(prompt), {start.red, start.green, start.blue}, interaction_.dialogs);
    if (!color)
        return std::nullopt;
    return RGBColor{color->red, color->green, color->blue};
}

void DesktopUser::runDeletion(runtime::DeletionList& list) {
    runDeletionWindow(list, interaction_);
}

} // namespace easel::window
