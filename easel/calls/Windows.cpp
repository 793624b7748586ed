// Drawing windows and the feedback in them, as the host interface names them.
#include "host/Windows.h"

#include "easel/runtime/DrawingWindow.h"
#include "easel/runtime/Host.h"
#include "easel/runtime/HostGraphics.h"
#include "easel/runtime/HostWindow.h"
#include "easel/runtime/Journal.h"
#include "easel/runtime/User.h"
#include "host/Drawing.h"

using easel::runtime::DrawingWindow;
using easel::runtime::journal;
using easel::runtime::theHost;

namespace {

// Waits for the mouse, and tells whether its button is held beyond the window's edge.
bool mouseIsDragged(const DrawingWindow& outOf) {
    const easel::runtime::MouseState mouse = theHost().user->waitWhileDown();
    return mouse.down && !outOf.view().seen().contains(mouse.at);
}

} // namespace

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
    theHost().user->setCursor(*state_->window, cursorId);
}

void DWindow::ScrollWDiag(bool wait) {
    journal("DWindow::ScrollWDiag", wait);
    DrawingWindow& window = *state_->window;
    do
        theHost().user->scrollTowardsMouse(window);
    while (wait && mouseIsDragged(window));
}

DWindow* ActiveDrawingWindow() {
    journal("ActiveDrawingWindow");
    DrawingWindow* window = theHost().activeWindow;
    return window ? &window->ref() : nullptr;
}

// The lines of one round and where they are to be shown; no window shows nothing.
struct CSyncronizedBuffer::State {
    explicit State(DrawingWindow* shownIn) : window(shownIn), environment(graphics) {}

    void show() {
        if (!window)
            return;
        window->setFeedback(graphics.lines);
        theHost().user->present(*window);
    }

    DrawingWindow* window;
    HostGraphics graphics;
    CGraphicsEnvironment environment;
};

CSyncronizedBuffer::CSyncronizedBuffer(DWindow* window, bool wholeWindow)
    : state_(std::make_unique<State>(window ? window->State().window : nullptr)) {
    journal("CSyncronizedBuffer", wholeWindow);
}

CSyncronizedBuffer::~CSyncronizedBuffer() {
    state_->graphics.lines.clear();
    state_->show();
}

void CSyncronizedBuffer::RefreshAndBeginDrawing() {
    journal("CSyncronizedBuffer::RefreshAndBeginDrawing");
    state_->graphics.lines.clear();
}

CGraphicsEnvironment* CSyncronizedBuffer::GetGEnv() {
    journal("CSyncronizedBuffer::GetGEnv");
    return &state_->environment;
}

void CSyncronizedBuffer::EndDrawingAndUpdateScreen() {
    journal("CSyncronizedBuffer::EndDrawingAndUpdateScreen");
    state_->show();
}
