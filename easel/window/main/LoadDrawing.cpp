// Drives a progress dialog from the reader's reports.
#include "easel/window/main/LoadDrawing.h"

#include "easel/files/AtomicFile.h"
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

} // namespace

files::Result<drawing::Drawing> loadDrawing(const QString& file, Interaction& interaction, QWidget* over) {
    const Waiting::Call call(interaction.waiting);
    const auto dialog =
        makeProgressDialog(QObject::tr("Opening %1 \u2026").arg(QFileInfo(file).fileName()), over);
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
    const std::filesystem::path path = QFile::encodeName(file).toStdString();
    // What a save of this drawing left when the program was killed goes now.
    files::removeLeftovers(path.parent_path());
    return svg::readFile(path, options);
}

} // namespace easel::window
