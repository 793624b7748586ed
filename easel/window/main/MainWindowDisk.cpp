// What the window says and does about its file on the disk.
#include "easel/files/AtomicFile.h"
#include "easel/files/InPlace.h"
#include "easel/runtime/Alert.h"
#include "easel/svg/Document.h"
#include "easel/window/dialogs/Questions.h"
#include "easel/window/main/LoadDrawing.h"
#include "easel/window/main/MainWindow.h"
#include "easel/window/main/NoticeBar.h"
#include "easel/window/main/SharedParts.h"
#include "easel/window/waiting/TellProblem.h"

#include <QFile>
#include <QFileInfo>

namespace easel::window {

void MainWindow::fileStateChanged(FileOnDisk::State state) {
    const NoticeBar::Action reload{tr("Reload"), [this] { this->reload(); }};
    const NoticeBar::Action keepMine{tr("Keep Mine"), [this] { this->keepMine(); }};
    const NoticeBar::Action saveAs{tr("Save As\u2026"), [this] { saveAsNow(); }};
    switch (state) {
    case FileOnDisk::State::Same:
        notice_->tell({});
        break;
    case FileOnDisk::State::Changed:
        notice_->tell(tr("\u201c%1\u201d was changed by another program.").arg(name()),
                      {reload, keepMine, saveAs});
        break;
    case FileOnDisk::State::Gone:
        notice_->tell(tr("\u201c%1\u201d was deleted or renamed by another program.").arg(name()),
                      {keepMine, saveAs});
        break;
    case FileOnDisk::State::Protected:
        notice_->tell(tr("\u201c%1\u201d is write-protected.").arg(name()), {saveAs});
        break;
    }
}

void MainWindow::tellShared() {
    notice_->tell(
        tr("\u201c%1\u201d is open in another window of Easel, too. What is saved there is not seen "
           "here before the file is read again.")
            .arg(name()));
}

// What the drawing shows is not what the file holds, so it is unsaved from now on.
void MainWindow::keepMine() {
    onDisk_.accept();
    drawingWindow_.drawing().markUnsaved();
    drawingChanged();
}

void MainWindow::reload() {
    if (isUnsaved() && !mayLose(tr("Read \u201c%1\u201d again?").arg(name()),
                                tr("The changes that are not saved are lost."), tr("Reload")))
        return onDisk_.tellAgain();
    auto loaded = loadDrawing(file_, shared_.interaction, this);
    if (loaded)
        setDrawing(*std::move(loaded));
    else if (!loaded.error().isCancellation())
        tellProblem(loaded.error(), shared_.interaction.dialogs);
}

void MainWindow::revertToOpened() {
    if (!mayLose(tr("Go back to \u201c%1\u201d as it was opened?").arg(name()),
                 tr("All changes since then are lost, and cannot be undone. The file stays as it is until "
                    "you save."),
                 tr("Revert")))
        return;
    const std::string bytes = contentBefore_ ? *contentBefore_ : svg::openedBytes(drawingWindow_.drawing());
    auto drawing = svg::readBytesOf(onDisk_.known().file(), bytes);
    if (!drawing)
        return tellProblem(drawing.error(), shared_.interaction.dialogs);
    if (!onDisk_.known().isContent(bytes))
        drawing->markUnsaved();
    contentBefore_.reset();
    showDrawing(*std::move(drawing));
}

bool MainWindow::mayLose(const QString& question, const QString& detail, const QString& yes) {
    runtime::Alert alert;
    alert.text = question.toStdString();
    alert.detail = detail.toStdString();
    alert.yesButton = yes.toStdString();
    alert.noButton = tr("Cancel").toStdString();
    return ask(alert, this, shared_.interaction.dialogs) == runtime::Answer::Yes;
}

WriteChoice MainWindow::mayWrite(const QString& file) {
    const QString name = QFileInfo(file).fileName();
    const bool isOwn = !file_.isEmpty() && QFileInfo(file) == QFileInfo(file_);
    if (isOwn && onDisk_.lookInto() == FileOnDisk::State::Changed)
        return askBeforeWriting(tr("\u201c%1\u201d was changed by another program.").arg(name),
                                tr("If it is saved now, what the other program wrote is lost."),
                                tr("&Overwrite"), this, shared_.interaction.dialogs);
    if (files::isWriteProtected(QFile::encodeName(file).toStdString()))
        return askBeforeWriting(tr("\u201c%1\u201d is write-protected.").arg(name),
                                tr("It can still be replaced by a new file of the same name."),
                                tr("&Replace"), this, shared_.interaction.dialogs);
    return WriteChoice::Write;
}

// A folder that takes no new files leaves nothing but writing into the old one, and the journal holds the
// whole drawing until that is done.
files::Result<> MainWindow::write(const std::filesystem::path& file, std::string_view bytes) {
    files::Result<> replaced = files::replaceFile(file, bytes);
    if (replaced || !files::isForbiddenFolder(replaced.error()) || files::isWriteProtected(file) ||
        !unsaved_.keepNow(drawingWindow_.drawing()))
        return replaced;
    return files::overwriteFile(file, bytes);
}

MainWindow::Saved MainWindow::saveFailed(const QString& file, const QString& reason) {
    const QString text = tr("\u201c%1\u201d could not be saved: %2.").arg(QFileInfo(file).fileName(), reason);
    const WriteChoice choice =
        askBeforeWriting(text, tr("The drawing stays as it is, with its changes unsaved."), {}, this,
                         shared_.interaction.dialogs);
    return choice == WriteChoice::SaveAs ? saveAs() : Saved::No;
}

} // namespace easel::window
