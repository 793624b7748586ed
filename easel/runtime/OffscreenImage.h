// An image beside the screen that is drawn into and then copied to it.
#pragma once

#include "easel/paint/Port.h"
#include "easel/runtime/HostGraphics.h"
#include "easel/runtime/Ports.h"
#include "host/Drawing.h"

namespace easel::runtime {

class OffscreenImage {
  public:
    // As sharp as the port that is current, in its coordinates, and with its background to begin with. The
    // ports outlive the image.
    OffscreenImage(const paint::PixelRect& bounds, Ports& ports);
    ~OffscreenImage();
    OffscreenImage(const OffscreenImage&) = delete;
    OffscreenImage& operator=(const OffscreenImage&) = delete;

    // Makes the image the current port, and then the one again that was current before.
    void beginDrawing();
    void endDrawing() { ports_.makeCurrent(before_); }
    CGraphicsEnvironment& environment() { return environment_; }
    const std::optional<ShownGradient>& gradient() const { return graphics_.gradient; }
    // Copies the image to the port at its bounds.
    void copyTo(paint::Port& port) const { port.copyFrom(image_); }

  private:
    Ports& ports_;
    paint::Port image_;
    HostGraphics graphics_;
    CGraphicsEnvironment environment_{graphics_};
    paint::Port* before_ = nullptr; // current until drawing began
};

} // namespace easel::runtime
