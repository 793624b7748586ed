// Drives a progress dialog from the reader's reports.
#include "easel/window/main/LoadDrawing.h"

#include "easel/files/AtomicFile.h"
#include "easel/window/main/BackgroundWork.h"
#include "easel/window/main/DesktopUser.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <QProgressDialog>

namespace easel::window {
namespace {

// Handling events between two reports costs time of its own.
constexpr qint64 kFrame = 33;

} // namespace

svg::ReadResult loadDrawing(const QString& file, DesktopUser& user, QWidget* over) {
    const DesktopUser::Call call(user);
    const auto dialog =
        makeProgressDialog(QObject::tr("Opening %1 \u2026").arg(QFileInfo(file).fileName()), over);
    const InputGate::Scope scope(user.gate(), dialog.get());
    QElapsedTimer sinceShown;
    sinceShown.start();
    svg::ReadOptions options;
    options.progress = [&](double done) {
        if (sinceShown.elapsed() >= kFrame) {
            // The window that it is to appear over may only now hear where it is.
            QCoreApplication::processEvents();
            showProgress(*dialog, done);
            sinceShown.restart();
        }
        return !dialog->wasCanceled() && !user.cancelled();
    };
    const std::filesystem::path path = QFile::encodeName(file).toStdString();
    // What a save of this drawing left when the program was killed goes now.
    files::removeLeftovers(path.parent_path());
    return svg::readFile(path, options);
}

} // namespace easel::window
