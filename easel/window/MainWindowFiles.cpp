// Opening, saving, exporting and printing.
#include "easel/paint/ExportDrawing.h"
#include "easel/svg/Document.h"
#include "easel/window/MainWindow.h"
#include "easel/window/Messages.h"
#include "easel/window/PrintDrawing.h"
#include "easel/window/Workspace.h"

#include <QFileDialog>
#include <QFileInfo>
#include <QMessageBox>
#include <QPrintDialog>
#include <QPrinter>
#include <QStatusBar>

namespace easel::window {
namespace {

constexpr int kMessageTime = 4000; // milliseconds

QString svgFilter() {
    return QObject::tr("SVG drawings (*.svg);;All files (*)");
}

} // namespace

void MainWindow::newDrawing() {
    workspace_.newDrawing();
}

void MainWindow::open() {
    QFileDialog dialog(this, tr("Open"), QFileInfo(file_).path(), svgFilter());
    dialog.setFileMode(QFileDialog::ExistingFiles);
    if (!workspace_.user().runDialog(dialog))
        return;
    for (const QString& file : dialog.selectedFiles())
        workspace_.openFile(file, this);
}

QString MainWindow::chosenFile(const QString& title, const QString& suffix, const QString& filter) {
    QFileDialog dialog(this, title, QFileInfo(file_).path(), filter);
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setDefaultSuffix(suffix);
    const QString base = file_.isEmpty() ? tr("Untitled") : QFileInfo(file_).completeBaseName();
    dialog.selectFile(base + QLatin1Char('.') + suffix);
    return workspace_.user().runDialog(dialog) ? dialog.selectedFiles().value(0) : QString();
}

MainWindow::Saved MainWindow::save() {
    return file_.isEmpty() ? saveAs() : saveTo(file_);
}

MainWindow::Saved MainWindow::saveAs() {
    const QString file = chosenFile(tr("Save As"), QStringLiteral("svg"), svgFilter());
    return file.isEmpty() ? Saved::No : saveTo(file);
}

MainWindow::Saved MainWindow::saveTo(const QString& file) {
    const auto failure = svg::saveFile(drawingWindow_.drawing(), QFile::encodeName(file).toStdString());
    if (failure) {
        workspace_.user().tell(failure->message);
        drawingChanged();
        return Saved::No;
    }
    file_ = QFileInfo(file).absoluteFilePath();
    workspace_.recentFiles().add(file_);
    drawingChanged();
    statusBar()->showMessage(tr("Saved %1").arg(name()), kMessageTime);
    return Saved::Yes;
}

void MainWindow::exportAs(const QString& suffix) {
    const QString file =
        chosenFile(tr("Export"), suffix, tr("%1 files (*.%2)").arg(suffix.toUpper(), suffix));
    if (file.isEmpty())
        return;
    const std::filesystem::path path = QFile::encodeName(file).toStdString();
    if (const auto error = paint::exportDrawing(drawingWindow_.drawing(), path))
        workspace_.user().tell(error->message());
    else
        statusBar()->showMessage(tr("Exported %1").arg(QFileInfo(file).fileName()), kMessageTime);
}

void MainWindow::print() {
    QPrinter printer(QPrinter::HighResolution);
    printer.setDocName(name());
    QPrintDialog dialog(&printer, this);
    if (!workspace_.user().runDialog(dialog))
        return;
    if (const QString problem = printDrawing(drawingWindow_.drawing(), printer); !problem.isEmpty())
        workspace_.tell(problem);
}

// Asks what is to become of unsaved changes; No if the user would rather go on.
MainWindow::Saved MainWindow::settleChanges() {
    if (!drawingWindow_.drawing().dirty())
        return Saved::Yes;
    raise();
    activateWindow();
    const UnsavedQuestion question = makeUnsavedQuestion(name(), this);
    workspace_.user().runDialog(*question.box);
    switch (question.choice()) {
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
