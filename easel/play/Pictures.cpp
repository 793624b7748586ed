// Writes drawing windows as PNG files.
#include "easel/play/Pictures.h"

#include "easel/export/PngFile.h"
#include "easel/play/PlayError.h"
#include "easel/play/Session.h"
#include "easel/runtime/Feedback.h"

#include <algorithm>

namespace easel::play {

namespace {

paint::Surface copyOf(const paint::Surface& image) {
    paint::Surface copy(image.width(), image.height());
    for (int y = 0; y < image.height(); ++y)
        std::copy_n(image.row(y), image.width(), copy.row(y));
    return copy;
}

} // namespace

void pictureOfWindow(Session& session, Arguments& arguments) {
    const std::filesystem::path file = session.resolve(arguments.text("FILE"));
    arguments.done();
    runtime::DrawingWindow& window = session.frontWindow();
    if (!session.user().holdsButton() || !window.painted())
        window.paintMarked();
    paint::Surface picture = copyOf(window.image());
    runtime::drawFeedback(window.feedback(), window.view().toImage(), picture.view());
    if (const auto written = exports::writePng(file, exports::rowsOf(picture)); !written)
        throw PlayError(written.error().message());
}

} // namespace easel::play
