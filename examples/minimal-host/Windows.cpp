// host/Windows.h and host/Mouse.h: the one window, and a mouse that follows a path known beforehand.
#include "Drawing.h"
#include "host/Drawing.h"
#include "host/Mouse.h"

namespace {

constexpr double kDragDistance = 3;

bool gGridSnap = false;
bool gObjectSnap = false;

} // namespace

HostWindow& TheWindow() {
    static HostWindow window;
    return window;
}

DWindow& TheWindowRef() {
    static DWindow ref(TheWindow());
    return ref;
}

Mouse& TheMouse() {
    static Mouse mouse;
    return mouse;
}

DWindow* ActiveDrawingWindow() {
    return &TheWindowRef();
}

// Nothing is drawn through a port in this host, so there is none.
OpaqueGrafPtr* DWindow::GetMacPort() {
    return nullptr;
}

void DWindow::UnselectAll() {
    state_->selected.clear();
}

// There is no undo in this host, no repainting before the picture is saved, and nothing to scroll.
void DWindow::SetUndo(long /*kind*/) {}
void DWindow::InvalSelection() {}
void DWindow::ScrollWDiag(bool /*wait*/) {}

bool StillDown() {
    return TheMouse().IsDown();
}

TPoint<double> PolyNewMouse(TPoint<double> /*previous*/) {
    return TheMouse().Move();
}

bool BreakHysteresis(TPoint<double> from, short /*cursor*/) {
    while (TheMouse().IsDown()) {
        if (LineLength(from, TheMouse().Move()) >= kDragDistance) {
            return true;
        }
    }
    return false;
}

bool GetGridSnap() {
    return gGridSnap;
}

void SetGridSnap(bool on) {
    gGridSnap = on;
}

bool GetObjectSnap() {
    return gObjectSnap;
}

void SetObjectSnap(bool on) {
    gObjectSnap = on;
}

bool NorvU::KeyIsDown(unsigned short /*keyCode*/) {
    return false;
}

// The line that is shown during a drag would go here; nobody is looking.
struct HostGraphics {};

struct CSyncronizedBuffer::State {
    HostGraphics graphics;
    CGraphicsEnvironment environment{graphics};
};

CSyncronizedBuffer::CSyncronizedBuffer(DWindow* /*window*/, bool /*wholeWindow*/)
    : state_(std::make_unique<State>()) {}
CSyncronizedBuffer::~CSyncronizedBuffer() = default;
void CSyncronizedBuffer::RefreshAndBeginDrawing() {}
CGraphicsEnvironment* CSyncronizedBuffer::GetGEnv() {
    return &state_->environment;
}
void CSyncronizedBuffer::EndDrawingAndUpdateScreen() {}

void DrawConstructionLine(CGraphicsEnvironment* /*environment*/, TPoint<double> const& /*from*/,
                          TPoint<double> const& /*to*/) {}
