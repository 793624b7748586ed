// Commands about drawings in files: opening, saving and exporting them.
#include "easel/export/ExportDrawing.h"
#include "easel/files/AtomicFile.h"
#include "easel/play/Command.h"
#include "easel/play/PlayError.h"
#include "easel/play/Session.h"
#include "easel/svg/Document.h"

namespace easel::play {

namespace {

std::filesystem::path fileIn(Session& session, Arguments& arguments) {
    std::filesystem::path file = session.resolve(arguments.text("FILE"));
    arguments.done();
    return file;
}

void open(Session& session, Arguments& arguments) {
    const std::filesystem::path file = fileIn(session, arguments);
    // What a save of this drawing left when the program was killed goes now.
    files::removeLeftovers(file.parent_path());
    auto drawing = svg::readFile(file);
    if (!drawing)
        throw PlayError(drawing.error().message());
    session.show(std::move(*drawing));
}

void save(Session& session, Arguments& arguments) {
    const std::filesystem::path file = fileIn(session, arguments);
    if (const auto saved = svg::saveFile(session.frontWindow().drawing(), file); !saved)
        throw PlayError(saved.error().message());
}

void exportPicture(Session& session, Arguments& arguments) {
    const std::filesystem::path file = fileIn(session, arguments);
    if (const auto exported = exports::exportDrawing(session.frontWindow().drawing(), file); !exported)
        throw PlayError(exported.error().message());
}

constexpr Command kFileCommands[] = {
    {"open", When::Idle, open},
    {"save", When::Idle, save},
    {"export", When::Idle, exportPicture},
};

} // namespace

std::span<const Command> fileCommands() {
    return kFileCommands;
}

} // namespace easel::play
