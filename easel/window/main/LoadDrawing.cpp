// Drives a progress dialog from the reader's reports.
#include "easel/window/main/LoadDrawing.h"

#include "easel/files/AtomicFile.h"
#include "easel/files/MemoryErrors.h"
#include "easel/files/WholeFile.h"
#include "easel/memory/MemoryReserve.h"
#include "easel/recovery/Journal.h"
#include "easel/window/waiting/BackgroundWork.h"
#include "easel/window/waiting/Interaction.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <QProgressDialog>

namespace easel::window {
namespace {

// Handling events between two reports costs time of its own.
constexpr qint64 kFrameTime = 33;

// Calls `read` with options that show its progress over that window and let the user cancel it.
template <class Read>
files::Result<drawing::Drawing> readBeside(const std::filesystem::path& file, Interaction& interaction,
                                           QWidget* over, Read read) {
    const QString name = QFile::decodeName(file.filename().c_str());
    const Waiting::Call call(interaction.waiting);
    const auto dialog = makeProgressDialog(QObject::tr("Opening %1 \u2026").arg(name), over);
    const InputGate::Scope scope(interaction.gate, dialog.get());
    QElapsedTimer sinceShown;
    sinceShown.start();
    svg::ReadOptions options;
    options.progress = [&](double done) {
        if (sinceShown.elapsed() >= kFrameTime) {
            // The window that it is to appear over may only now hear where it is.
            QCoreApplication::processEvents();
            showProgress(*dialog, done);
            sinceShown.restart();
        }
        return !dialog->wasCanceled() && !interaction.waiting.cancelled();
    };
    files::Result<drawing::Drawing> drawing = read(options);
    // One that leaves no memory for a change is too large.
    if (drawing && !memory::memoryIsLeft())
        return tl::unexpected(files::tooLargeForMemory(file));
    return drawing;
}

// The file with the content that it has, unless it is younger than the other file.
files::KnownFile knownBefore(const std::filesystem::path& file, const std::filesystem::path& other) {
    files::KnownFile known(file);
    std::error_code error;
    const auto written = std::filesystem::last_write_time(file, error);
    if (error || written > std::filesystem::last_write_time(other, error))
        return known;
    if (const auto content = files::readWholeFile(file))
        known.setContent(files::charactersOf(*content));
    return known;
}

} // namespace

files::Result<LoadedDrawing> loadDrawing(const QString& file, Interaction& interaction, QWidget* over) {
    const std::filesystem::path path = QFile::encodeName(file).toStdString();
    // What a save of this drawing left when the program was killed goes now.
    files::removeLeftovers(path.parent_path());
    files::KnownFile known(QFile::encodeName(QFileInfo(file).absoluteFilePath()).toStdString());
    return readBeside(path, interaction, over,
                      [&](const svg::ReadOptions& options) { return svg::readFile(path, options); })
        .map([&](drawing::Drawing drawing) {
            known.setContent(svg::openedBytes(drawing));
            return LoadedDrawing{std::move(drawing), std::move(known)};
        });
}

files::Result<LoadedDrawing> loadKept(const recovery::Journal& journal, Interaction& interaction,
                                      QWidget* over) {
    const auto bytes = files::readWholeFile(journal.drawing());
    if (!bytes)
        return tl::unexpected(bytes.error());
    const std::filesystem::path& origin = journal.origin();
    const std::filesystem::path& shown = origin.empty() ? journal.drawing() : origin;
    auto drawing = readBeside(shown, interaction, over, [&](const svg::ReadOptions& options) {
        return svg::readBytesOf(origin, {bytes->begin(), bytes->end()}, options);
    });
    if (!drawing)
        return tl::unexpected(drawing.error().of(journal.drawing()));
    drawing->markUnsaved();
    return LoadedDrawing{*std::move(drawing), knownBefore(origin, journal.drawing())};
}

} // namespace easel::window
