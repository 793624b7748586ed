// Implements host/Windows.h.
#include "host/Windows.h"

#include "easel/runtime/DrawingWindow.h"
#include "easel/runtime/FeedbackRounds.h"
#include "easel/runtime/HostWindow.h"
#include "easel/runtime/Process.h"
#include "easel/runtime/User.h"

using easel::runtime::Dialog;
using easel::runtime::DrawingWindow;
using easel::runtime::journal;
using easel::runtime::process;

namespace {

// Waits for the mouse, and tells whether its button is held beyond the window's edge.
bool mouseIsDragged(const DrawingWindow& outOf) {
    const easel::runtime::MouseState mouse = process().user().waitWhileDown();
    return mouse.down && !outOf.view().seen().contains(mouse.at);
}

} // namespace

// A dialog's window is known by the same reference as the dialog.
void ShowWindow(OpaqueWindowPtr* window) {
    journal("ShowWindow");
    Dialog* dialog = process().dialogs().find(reinterpret_cast<OpaqueDialogPtr*>(window));
    if (!dialog || dialog->shown())
        return;
    dialog->show();
    process().user().dialogShown(*dialog);
}

OpaqueGrafPtr* DWindow::GetMacPort() {
    journal("DWindow::GetMacPort");
    return reinterpret_cast<OpaqueGrafPtr*>(&state_->window->port());
}

void DWindow::UnselectAll() {
    journal("DWindow::UnselectAll");
    state_->window->drawing().unselectAll();
}

void DWindow::SetUndo(long kind) {
    journal("DWindow::SetUndo", kind);
    state_->window->drawing().prepareUndo(kind);
}

void DWindow::InvalSelection() {
    journal("DWindow::InvalSelection");
    state_->window->drawing().invalidateSelection();
}

void DWindow::SetIDCursor(long cursorId) {
    journal("DWindow::SetIDCursor", cursorId);
    state_->window->setCursor(cursorId);
    process().user().setCursor(*state_->window, cursorId);
}

void DWindow::ScrollWDiag(bool wait) {
    journal("DWindow::ScrollWDiag", wait);
    DrawingWindow& window = *state_->window;
    do
        process().user().scrollTowardsMouse(window);
    while (wait && mouseIsDragged(window));
}

DWindow* ActiveDrawingWindow() {
    journal("ActiveDrawingWindow");
    DrawingWindow* window = process().activeWindow();
    return window ? &window->ref() : nullptr;
}

struct CSyncronizedBuffer::State : easel::runtime::FeedbackRounds {
    using FeedbackRounds::FeedbackRounds;
};

CSyncronizedBuffer::CSyncronizedBuffer(DWindow* window, bool wholeWindow)
    : state_(std::make_unique<State>(window ? window->State().window : nullptr, process().user())) {
    journal("CSyncronizedBuffer", wholeWindow);
}

CSyncronizedBuffer::~CSyncronizedBuffer() = default;

void CSyncronizedBuffer::RefreshAndBeginDrawing() {
    journal("CSyncronizedBuffer::RefreshAndBeginDrawing");
    state_->begin();
}

CGraphicsEnvironment* CSyncronizedBuffer::GetGEnv() {
    journal("CSyncronizedBuffer::GetGEnv");
    return &state_->environment();
}

void CSyncronizedBuffer::EndDrawingAndUpdateScreen() {
    journal("CSyncronizedBuffer::EndDrawingAndUpdateScreen");
    state_->show();
}
