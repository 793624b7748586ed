// Writes parts of a dialog's image as pictures.
#include "easel/play/DialogPictures.h"

#include "easel/export/PngFile.h"
#include "easel/paint/Port.h"
#include "easel/paint/pixels/Surface.h"
#include "easel/play/PlayError.h"
#include "easel/play/Session.h"
#include "easel/runtime/Dialog.h"

#include <limits>

namespace easel::play {

namespace {

const runtime::Dialog& frontDialog(Session& session) {
    const runtime::Dialog* dialog = session.user().questions().frontDialog();
    if (!dialog)
        throw PlayError("no dialog is open");
    return *dialog;
}

void write(Session& session, const paint::Port& port, const paint::PixelRect& area, const std::string& file) {
    const paint::PixelRect part =
        port.imageRect(area).intersection({.right = port.imageWidth(), .bottom = port.imageHeight()});
    if (part.empty())
        throw PlayError("there is nothing to be seen there");
    const std::ptrdiff_t width = port.imageWidth();
    const exports::PixelRows rows{port.pixels() + part.top * width + part.left, part.width(), part.height(),
                                  width * paint::kBytesPerPixel};
    if (const auto written = exports::writePng(session.resolve(file), rows); !written)
        throw PlayError(written.error().message());
}

} // namespace

void pictureOfItem(Session& session, Arguments& arguments) {
    const runtime::Dialog& dialog = frontDialog(session);
    const long number = arguments.integer("the item", 1, std::numeric_limits<std::int16_t>::max());
    const std::string file = arguments.text("the file");
    arguments.done();
    const runtime::DialogItem* item = dialog.item(static_cast<int>(number));
    if (!item)
        throw PlayError("the dialog has no item " + std::to_string(number));
    write(session, dialog.port(), item->bounds, file);
}

void pictureOfDialog(Session& session, Arguments& arguments) {
    const runtime::Dialog& dialog = frontDialog(session);
    const std::string file = arguments.text("the file");
    arguments.done();
    write(session, dialog.port(), dialog.port().bounds(), file);
}

} // namespace easel::play
