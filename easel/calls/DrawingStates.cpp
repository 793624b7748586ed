// Scopes that put the current port, its pen and colors or its clip back, as the host interface names them.
#include "host/Drawing.h"

#include "easel/paint/Port.h"
#include "easel/runtime/CurrentPort.h"
#include "easel/runtime/Host.h"
#include "easel/runtime/Journal.h"

using easel::paint::Port;
using easel::runtime::currentPort;
using easel::runtime::journal;

StGrafPortSaver::StGrafPortSaver()
    : port_(reinterpret_cast<OpaqueGrafPtr*>(easel::runtime::theHost().currentPort)) {
    journal("StGrafPortSaver");
}

// The port may have gone with its dialog; then none is current.
StGrafPortSaver::~StGrafPortSaver() {
    easel::runtime::setCurrentPort(reinterpret_cast<Port*>(port_));
}

struct StThemeDrawingState::State {
    Port* port;
    easel::paint::Pen pen;
    easel::paint::PortColor foreground;
};

StThemeDrawingState::StThemeDrawingState()
    : state_(new State{&currentPort(), currentPort().state().pen, currentPort().state().foreground}) {
    journal("StThemeDrawingState");
}

StThemeDrawingState::~StThemeDrawingState() {
    if (!easel::runtime::isRegistered(state_->port))
        return;
    state_->port->state().pen = state_->pen;
    state_->port->state().foreground = state_->foreground;
}

struct StClipRgnState::State {
    Port* port;
    easel::paint::PixelRect clip;
};

StClipRgnState::StClipRgnState() : state_(new State{&currentPort(), currentPort().state().clip}) {
    journal("StClipRgnState");
}

StClipRgnState::~StClipRgnState() {
    if (easel::runtime::isRegistered(state_->port))
        state_->port->state().clip = state_->clip;
}
