// Keeps an off-screen image among the ports.
#include "easel/runtime/OffscreenImage.h"

namespace easel::runtime {

OffscreenImage::OffscreenImage(const paint::PixelRect& bounds, Ports& ports)
    : ports_(ports), image_(bounds, ports.target().scale(), ports.target().state().background) {
    graphics_.port = &image_;
    ports_.add(image_);
}

OffscreenImage::~OffscreenImage() {
    // Drawing that was cut off by an exception does not leave the image current.
    if (ports_.current() == &image_)
        endDrawing();
    ports_.forget(image_);
}

void OffscreenImage::beginDrawing() {
    before_ = ports_.current();
    ports_.makeCurrent(&image_);
}

} // namespace easel::runtime
