// Off-screen images, as the host interface names them.
#include "host/Drawing.h"

#include "easel/interface/CurrentPort.h"
#include "easel/interface/Host.h"
#include "easel/interface/HostGraphics.h"
#include "easel/interface/Journal.h"
#include "easel/paint/Port.h"

using easel::host::currentPort;
using easel::host::journal;
using easel::paint::Port;

// The image is as sharp as the port that is current when it is made, and begins with that port's background.
struct CSimplePixMap::State {
    explicit State(const TRect<short>& bounds)
        : image({bounds.top, bounds.left, bounds.bottom, bounds.right}, currentPort().scale(),
                currentPort().state().background),
          environment(graphics) {
        graphics.port = &image;
        easel::host::registerPort(image);
    }
    ~State() { easel::host::forgetPort(image); }
    State(const State&) = delete;
    State& operator=(const State&) = delete;

    Port image;
    HostGraphics graphics;
    CGraphicsEnvironment environment;
    Port* before = nullptr; // current until drawing began
};

CSimplePixMap::CSimplePixMap(TRect<short> const& bounds, short depth, OpaqueColorTable*)
    : state_(std::make_unique<State>(bounds)) {
    journal("CSimplePixMap", depth);
}

CSimplePixMap::~CSimplePixMap() {
    // Drawing that was cut off by an exception does not leave the image current.
    if (easel::host::theHost().currentPort == &state_->image)
        easel::host::setCurrentPort(state_->before);
}

void CSimplePixMap::BeginDrawing() {
    journal("CSimplePixMap::BeginDrawing");
    state_->before = easel::host::theHost().currentPort;
    easel::host::setCurrentPort(&state_->image);
}

CGraphicsEnvironment* CSimplePixMap::GetGEnv() {
    journal("CSimplePixMap::GetGEnv");
    return &state_->environment;
}

void CSimplePixMap::EndDrawing() {
    journal("CSimplePixMap::EndDrawing");
    easel::host::setCurrentPort(state_->before);
}

void CSimplePixMap::CopyFrom() {
    journal("CSimplePixMap::CopyFrom");
    currentPort().copyFrom(state_->image);
}
