// Opening, saving, exporting and printing.
#include "easel/export/ExportDrawing.h"
#include "easel/runtime/Alert.h"
#include "easel/svg/Document.h"
#include "easel/window/dialogs/PictureSizeQuestion.h"
#include "easel/window/dialogs/Questions.h"
#include "easel/window/main/MainWindow.h"
#include "easel/window/main/PrintDrawing.h"
#include "easel/window/main/SharedParts.h"
#include "easel/window/waiting/BackgroundWork.h"
#include "easel/window/waiting/CoreTexts.h"
#include "easel/window/waiting/TellProblem.h"

#include <QDragEnterEvent>
#include <QFileDialog>
#include <QFileInfo>
#include <QMimeData>
#include <QPrintDialog>
#include <QPrinter>
#include <QStatusBar>
#include <QTimer>
#include <QUrl>

namespace easel::window {
namespace {

QString svgFilter() {
    return QObject::tr("SVG drawings (*.svg *.svgz);;All files (*)");
}

QStringList localFiles(const QMimeData& data) {
    QStringList files;
    for (const QUrl& url : data.urls())
        if (url.isLocalFile())
            files << url.toLocalFile();
    return files;
}

bool isPictureName(const QString& file) {
    const QString suffix = QFileInfo(file).suffix().toLower();
    return suffix == QLatin1String("png") || suffix == QLatin1String("pdf") || suffix == QLatin1String("svg");
}

} // namespace

void MainWindow::open() {
    QFileDialog dialog(this, tr("Open"), QFileInfo(file_).path(), svgFilter());
    dialog.setFileMode(QFileDialog::ExistingFiles);
    if (!shared_.interaction.dialogs.run(dialog))
        return;
    Q_EMIT filesWanted(dialog.selectedFiles());
}

void MainWindow::dragEnterEvent(QDragEnterEvent* event) {
    if (!localFiles(*event->mimeData()).isEmpty())
        event->acceptProposedAction();
}

void MainWindow::dropEvent(QDropEvent* event) {
    event->acceptProposedAction();
    // Where the files come from waits for the answer to the drop; opening them can take its time.
    QTimer::singleShot(0, this,
                       [this, files = localFiles(*event->mimeData())] { Q_EMIT filesWanted(files); });
}

QString MainWindow::baseName() const {
    return file_.isEmpty() ? tr("Untitled") : QFileInfo(file_).completeBaseName();
}

QString MainWindow::chosenFile(const QString& title, const QString& name, const QString& filter) {
    QFileDialog dialog(this, title, QFileInfo(file_).path(), filter);
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setDefaultSuffix(QFileInfo(name).suffix());
    dialog.selectFile(name);
    return shared_.interaction.dialogs.run(dialog) ? dialog.selectedFiles().value(0) : QString();
}

MainWindow::Saved MainWindow::save() {
    return file_.isEmpty() ? saveAs() : saveTo(file_);
}

MainWindow::Saved MainWindow::saveAs() {
    const bool packed = QFileInfo(file_).suffix().compare(QLatin1String("svgz"), Qt::CaseInsensitive) == 0;
    const QString ending = packed ? QStringLiteral(".svgz") : QStringLiteral(".svg");
    const QString file = chosenFile(tr("Save As"), baseName() + ending, svgFilter());
    return file.isEmpty() ? Saved::No : saveTo(file);
}

MainWindow::Saved MainWindow::saveTo(const QString& file) {
    switch (mayWrite(file)) {
    case WriteChoice::Write:
        break;
    case WriteChoice::SaveAs:
        return saveAs();
    case WriteChoice::Cancel:
        return Saved::No;
    }
    const std::filesystem::path path = QFile::encodeName(QFileInfo(file).absoluteFilePath()).toStdString();
    const auto bytes = svg::bytesFor(drawingWindow_.drawing(), path);
    const files::Result<> saved = bytes.and_then([&](const std::string& all) { return write(path, all); });
    if (!saved) {
        drawingChanged();
        return saveFailed(file, inUsersLanguage(saved.error().reason));
    }
    drawingWindow_.drawing().markSaved();
    files::KnownFile known(path);
    known.setContent(*bytes);
    std::optional<std::string> before = std::move(contentBefore_);
    setFile(std::move(known));
    contentBefore_ = std::move(before);
    shared_.recentFiles.add(file_);
    drawingChanged();
    statusBar()->showMessage(tr("Saved %1").arg(name()), kMessageTime);
    return Saved::Yes;
}

QString MainWindow::fileForExport(const QString& suffix) {
    const QString ending = QLatin1Char('.') + suffix;
    // An export holds less than the drawing's own file, so it is not to take its place.
    const QString copy = ending == QLatin1String(".svg") ? tr(" exported") : QString();
    QString file = chosenFile(tr("Export as %1").arg(suffix.toUpper()), baseName() + copy + ending,
                              tr("%1 files (*.%2)").arg(suffix.toUpper(), suffix));
    if (file.isEmpty())
        return {};
    if (!isPictureName(file)) {
        file += ending;
        if (QFileInfo::exists(file) && !mayReplace(file))
            return {};
    }
    if (!file_.isEmpty() && QFileInfo(file) == QFileInfo(file_)) {
        const QString problem =
            tr("%1: this is the drawing itself. Export it under another name, or save it.").arg(file);
        tellProblem(problem, shared_.interaction.dialogs);
        return {};
    }
    return file;
}

bool MainWindow::mayReplace(const QString& file) {
    return mayLose(tr("%1 is there already. Replace it?").arg(file), {}, tr("Replace"));
}

void MainWindow::exportAs(const QString& suffix) {
    const QString file = fileForExport(suffix);
    if (file.isEmpty())
        return;
    exports::SizeRequest size;
    if (QFileInfo(file).suffix().compare(QLatin1String("png"), Qt::CaseInsensitive) == 0) {
        const drawing::Drawing& drawing = drawingWindow_.drawing();
        size.scale = askForPictureScale({drawing.width(), drawing.height()}, shared_.interaction.dialogs);
        if (!size.scale)
            return;
    }
    const std::filesystem::path path = QFile::encodeName(file).toStdString();
    files::Result<> exported;
    runInBackground(shared_.interaction, tr("Exporting %1 \u2026").arg(QFileInfo(file).fileName()), this,
                    [&](const exports::Progress& progress) {
                        exported = exports::exportDrawing(drawingWindow_.drawing(), path, size, progress);
                    });
    if (!exported && !exported.error().isCancellation())
        tellProblem(exported.error(), shared_.interaction.dialogs);
    else if (exported)
        statusBar()->showMessage(tr("Exported %1").arg(QFileInfo(file).fileName()), kMessageTime);
}

void MainWindow::print() {
    QPrinter printer(QPrinter::HighResolution);
    printer.setDocName(name());
    turnPage(drawingWindow_.drawing(), printer);
    QPrintDialog dialog(&printer, this);
    if (!shared_.interaction.dialogs.run(dialog))
        return;
    if (printDrawing(drawingWindow_.drawing(), printer, shared_.interaction, this) == Printed::Yes)
        statusBar()->showMessage(tr("Printed %1").arg(name()), kMessageTime);
}

// Asks what is to become of unsaved changes; No if the user would rather go on.
MainWindow::Saved MainWindow::settleChanges() {
    if (!drawingWindow_.drawing().dirty())
        return Saved::Yes;
    raise();
    activateWindow();
    switch (askAboutUnsaved(name(), this, shared_.interaction.dialogs)) {
    case UnsavedChoice::Save:
        return save();
    case UnsavedChoice::Discard:
        return Saved::Yes;
    case UnsavedChoice::Cancel:
        break;
    }
    return Saved::No;
}

} // namespace easel::window
