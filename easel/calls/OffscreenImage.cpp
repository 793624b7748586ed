// Off-screen images, as the host interface names them.
#include "host/Drawing.h"

#include "easel/paint/Port.h"
#include "easel/runtime/CurrentPort.h"
#include "easel/runtime/Host.h"
#include "easel/runtime/HostGraphics.h"
#include "easel/runtime/Journal.h"

using easel::paint::Port;
using easel::runtime::currentPort;
using easel::runtime::journal;

// The image is as sharp as the port that is current when it is made, and begins with that port's background.
struct CSimplePixMap::State {
    explicit State(const TRect<short>& bounds)
        : image({bounds.top, bounds.left, bounds.bottom, bounds.right}, currentPort().scale(),
                currentPort().state().background),
          environment(graphics) {
        graphics.port = &image;
        easel::runtime::registerPort(image);
    }
    ~State() { easel::runtime::forgetPort(image); }
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
    if (easel::runtime::theHost().currentPort == &state_->image)
        easel::runtime::setCurrentPort(state_->before);
}

void CSimplePixMap::BeginDrawing() {
    journal("CSimplePixMap::BeginDrawing");
    state_->before = easel::runtime::theHost().currentPort;
    easel::runtime::setCurrentPort(&state_->image);
}

CGraphicsEnvironment* CSimplePixMap::GetGEnv() {
    journal("CSimplePixMap::GetGEnv");
    return &state_->environment;
}

void CSimplePixMap::EndDrawing() {
    journal("CSimplePixMap::EndDrawing");
    easel::runtime::setCurrentPort(state_->before);
}

void CSimplePixMap::CopyFrom() {
    journal("CSimplePixMap::CopyFrom");
    currentPort().copyFrom(state_->image);
}
