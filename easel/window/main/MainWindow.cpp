// Puts the window together and keeps it in step with its drawing.
#include "easel/window/main/MainWindow.h"

#include "easel/files/WholeFile.h"
#include "easel/runtime/Coordinates.h"
#include "easel/runtime/Process.h"
#include "easel/window/canvas/Canvas.h"
#include "easel/window/canvas/SelectTool.h"
#include "easel/window/canvas/ShapeText.h"
#include "easel/window/look/Theme.h"
#include "easel/window/main/ElidedLabel.h"
#include "easel/window/main/GradientMenu.h"
#include "easel/window/main/HelpDialogs.h"
#include "easel/window/main/LoadDrawing.h"
#include "easel/window/main/NoticeBar.h"
#include "easel/window/main/SharedParts.h"
#include "easel/window/waiting/CoreTexts.h"
#include "easel/window/waiting/FitToScreen.h"

#include <QAction>
#include <QActionGroup>
#include <QCloseEvent>
#include <QFileInfo>
#include <QLabel>
#include <QLocale>
#include <QMenu>
#include <QScreen>
#include <QStatusBar>
#include <QTimer>
#include <QToolButton>
#include <QVBoxLayout>

#include <algorithm>
#include <cmath>

namespace easel::window {
namespace {

constexpr double kZoomStep = 1.25;
constexpr QSize kWindowSize{1120, 760};

QString joined(const std::vector<std::string>& notes) {
    QStringList lines;
    for (const std::string& note : notes)
        lines << inUsersLanguage(note);
    return lines.join(QLatin1Char('\n'));
}

QString titleOf(const QString& drawing) {
    return QObject::tr("%1[*] \u2014 Easel").arg(drawing);
}

QString percentText(int percent) {
    return QObject::tr("%1 %").arg(QLocale().toString(percent));
}

} // namespace

QString coordinatesText(drawing::Point at, double zoom) {
    const int decimals = runtime::decimalsAt(zoom);
    const double unit = std::pow(10, decimals);
    const auto number = [&](double value) {
        return QLocale().toString(std::floor(value * unit) / unit, 'f', decimals);
    };
    //: Two coordinates, and what stands between them where a comma is the decimal sign
    return QObject::tr("%1, %2").arg(number(at.x), number(at.y));
}

MainWindow::MainWindow(SharedParts& shared, LoadedDrawing loaded)
    : shared_(shared), drawingWindow_(std::move(loaded.drawing), shared.process), notice_(new NoticeBar),
      closing_(shared.interaction.waiting, [this] { close(); }), unsaved_(shared.journals) {
    setAttribute(Qt::WA_DeleteOnClose);
    setFile(std::move(loaded.file));
    canvas_ = new Canvas(drawingWindow_, shared_.interaction, shared_.canvases);
    auto* middle = new QWidget;
    auto* layout = new QVBoxLayout(middle);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(notice_);
    layout->addWidget(canvas_, 1);
    setCentralWidget(middle);
    resize(kWindowSize.boundedTo(screen()->availableSize() - kWindowFrame));
    setAcceptDrops(true);

    buildActions();
    buildStatusBar();
    connect(canvas_, &Canvas::changed, this, &MainWindow::drawingChanged);
    connect(canvas_, &Canvas::shapeChosen, this, [this](std::size_t index) {
        const drawing::Object& shape = *drawingWindow_.drawing().object(index);
        statusBar()->showMessage(QStringLiteral("%1 \u2014 %2").arg(shapeName(shape), fillText(shape)),
                                 kMessageTime);
    });
    connect(
        canvas_, &Canvas::cannotPaint, this,
        [this] {
            notice_->tell(tr("There is not enough memory to show \u201c%1\u201d as it is.").arg(name()));
        },
        Qt::QueuedConnection);
    connect(canvas_, &Canvas::zoomChanged, this, &MainWindow::showZoom);
    connect(&shared_.tools, &ToolChoice::activeChanged, this, &MainWindow::toolChanged);
    connect(&unsaved_, &UnsavedKeeper::failed, this, [this](const QString& reason) {
        notice_->tell(tr("Until you save, changes are not safe from a crash: %1").arg(reason));
    });
    connect(&onDisk_, &FileOnDisk::stateChanged, this, &MainWindow::fileStateChanged);
    connect(&onDisk_, &FileOnDisk::shared, this, &MainWindow::tellShared);
    notice_->tell(joined(drawingWindow_.drawing().notes()));
    toolChanged();
    drawingChanged();
    showZoom(canvas_->zoom());
    canvas_->setFocus();
}

MainWindow::~MainWindow() {
    // The canvas speaks of the drawing until it is gone.
    delete canvas_;
    Q_EMIT closed();
}

QString MainWindow::name() const {
    return file_.isEmpty() ? tr("Untitled") : QFileInfo(file_).fileName();
}

bool MainWindow::isPristine() const {
    const drawing::Drawing& drawing = drawingWindow_.drawing();
    return file_.isEmpty() && !drawing.dirty() && drawing.undoLevels() == 0 && drawing.redoLevels() == 0;
}

void MainWindow::setDrawing(LoadedDrawing loaded) {
    setFile(std::move(loaded.file));
    showDrawing(std::move(loaded.drawing));
}

void MainWindow::showDrawing(drawing::Drawing drawing) {
    drawingWindow_.setDrawing(std::move(drawing));
    notice_->tell(joined(drawingWindow_.drawing().notes()));
    toldCosts_.clear();
    drawingChanged();
    showAnew();
}

void MainWindow::showAnew() {
    // The canvas has to have its place beside the notice before it fits the drawing in.
    centralWidget()->layout()->activate();
    canvas_->showAnew();
}

void MainWindow::setFile(files::KnownFile file) {
    file_ = QFile::decodeName(file.file().c_str());
    unsaved_.setOrigin(file.file());
    onDisk_.follow(std::move(file));
    contentBefore_.reset();
}

void MainWindow::adopt(recovery::Journal journal) {
    unsaved_.adopt(std::move(journal));
    if (const auto content = files::readWholeFile(onDisk_.known().file()))
        contentBefore_.emplace(content->begin(), content->end());
    drawingChanged();
    onDisk_.tellAgain();
}

double MainWindow::zoom() const {
    return canvas_->zoom();
}

void MainWindow::restore(const QByteArray& geometry, double zoom) {
    restoreGeometry(geometry);
    // After the canvas has fitted the drawing in, which it does when it first has a size.
    QTimer::singleShot(0, canvas_, [this, zoom] { canvas_->zoomAboutMiddle(zoom); });
}

bool MainWindow::mayEnd() {
    const bool settled = settleChanges() == Saved::Yes;
    if (settled) {
        unsaved_.giveUp();
        settledRevision_ = drawingWindow_.drawing().revision();
    }
    return settled;
}

void MainWindow::keepUnsaved() {
    if (isUnsaved() && drawingWindow_.drawing().revision() != settledRevision_)
        unsaved_.keepNow(drawingWindow_.drawing());
}

MainWindow::Awaiting::Awaiting(MainWindow& window, const QString& file) : window_(window) {
    window_.canvas_->setEnabled(false);
    window_.setWindowTitle(titleOf(QFileInfo(file).fileName()));
}

MainWindow::Awaiting::~Awaiting() {
    window_.canvas_->setEnabled(true);
    window_.canvas_->setFocus();
    window_.drawingChanged();
}

void MainWindow::buildStatusBar() {
    message_ = new ElidedLabel;
    pointer_ = new QLabel;
    // Of a fixed size, as the status bar is laid out anew for any other label that changes.
    const QString longest = QStringLiteral("-00000.00, -00000.00");
    pointer_->setFixedSize(pointer_->fontMetrics().boundingRect(longest).size() + QSize(4, 4));
    pointer_->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    pointer_->setToolTip(tr("Pointer, from the drawing's top-left corner"));
    connect(canvas_, &Canvas::pointerAt, this, [this](QPointF at) {
        pointer_->setText(coordinatesText({at.x(), at.y()}, canvas_->zoom()));
    });
    connect(canvas_, &Canvas::pointerLeft, pointer_, &QLabel::clear);

    zoomButton_ = new QToolButton;
    zoomButton_->setPopupMode(QToolButton::InstantPopup);
    zoomButton_->setAutoRaise(true);
    zoomButton_->setToolTip(tr("Zoom"));
    zoomButton_->setMinimumWidth(fontMetrics().horizontalAdvance(QStringLiteral("00000 %")) + 24);
    auto* levels = new QMenu(zoomButton_);
    for (const int percent : {25, 50, 75, 100, 150, 200, 400, 800})
        levels->addAction(percentText(percent), this,
                          [this, percent] { canvas_->zoomAboutMiddle(percent / 100.0); });
    levels->addSeparator();
    levels->addAction(zoomFit_);
    zoomButton_->setMenu(levels);

    statusBar()->setSizeGripEnabled(false);
    statusBar()->setContentsMargins(8, 0, 4, 0);
    statusBar()->addWidget(message_, 1);
    statusBar()->addPermanentWidget(pointer_);
    statusBar()->addPermanentWidget(zoomButton_);
}

void MainWindow::drawingChanged() {
    const drawing::Drawing& drawing = drawingWindow_.drawing();
    undo_->setEnabled(drawing.undoLevels() > 0);
    redo_->setEnabled(drawing.redoLevels() > 0);
    delete_->setEnabled(drawing.hasSelection());
    revert_->setEnabled(contentBefore_ || (drawing.source() && drawing.revision() != 0));
    gradientMenu_->followSelection();
    showWhatIsKept();
    setWindowTitle(titleOf(name()));
    setWindowModified(drawing.dirty());
    setWindowFilePath(file_);
    canvas_->marked();
    unsaved_.follow(drawing);
}

void MainWindow::toolChanged() {
    const PaletteTool& tool = shared_.tools.active();
    for (QAction* action : toolActions_->actions())
        action->setChecked(action->data().toULongLong() == shared_.tools.activeIndex());
    canvas_->setTool(tool.tool);
    toolMessage_ = tool.plugin ? tr("Click or drag on a shape; hold Alt or Ctrl and click to edit its colors")
                               : tr("Click to select, Shift-click to add, drag to select several");
    showWhatIsKept();
}

void MainWindow::nothingToPaint() {
    if (isActiveWindow())
        canvas_->flash();
    statusBar()->showMessage(tr("There is no shape here that can carry a gradient"), kMessageTime);
}

void MainWindow::showZoom(double zoom) {
    zoomButton_->setText(percentText(static_cast<int>(std::lround(zoom * 100))));
}

void MainWindow::undo() {
    drawingWindow_.drawing().undo();
    drawingChanged();
}

void MainWindow::redo() {
    drawingWindow_.drawing().redo();
    drawingChanged();
}

void MainWindow::deleteSelected() {
    deleteSelection(drawingWindow_.drawing());
    drawingChanged();
}

void MainWindow::selectAllObjects() {
    selectAll(drawingWindow_.drawing());
    drawingChanged();
}

void MainWindow::openOptions() {
    for (const PaletteTool& tool : shared_.tools.tools())
        if (tool.plugin && (&tool == &shared_.tools.active() || !shared_.tools.active().plugin)) {
            shared_.interaction.dialogs.setSubject(DialogSubject{tr("Current %1"), {}});
            tool.plugin->openOptions();
            shared_.interaction.dialogs.setSubject({});
            return;
        }
}

void MainWindow::zoomIn() {
    canvas_->zoomAboutMiddle(canvas_->zoom() * kZoomStep);
}
void MainWindow::zoomOut() {
    canvas_->zoomAboutMiddle(canvas_->zoom() / kZoomStep);
}
void MainWindow::zoomActual() {
    canvas_->zoomAboutMiddle(1);
}
void MainWindow::zoomFit() {
    canvas_->fit();
}

void MainWindow::snapChanged() {
    const auto state = [](const QAction& action) {
        return action.isChecked() ? runtime::Switch::On : runtime::Switch::Off;
    };
    shared_.process.snap() = {state(*snapGrid_), state(*snapObject_)};
}

void MainWindow::showSnap() {
    const runtime::SnapSwitches& snap = shared_.process.snap();
    snapGrid_->setChecked(snap.grid == runtime::Switch::On);
    snapObject_->setChecked(snap.object == runtime::Switch::On);
}

void MainWindow::chooseAppearance(QAction* chosen) {
    const auto appearance = static_cast<Appearance>(chosen->data().toInt());
    storeAppearance(appearance);
    applyAppearance(appearance);
}

void MainWindow::showShortcuts() {
    window::showShortcuts(*this, shared_.interaction.dialogs);
}
void MainWindow::showAbout() {
    window::showAbout(shared_.version, shared_.interaction.dialogs);
}
void MainWindow::changeEvent(QEvent* event) {
    QMainWindow::changeEvent(event);
    if (event->type() != QEvent::ActivationChange || !isActiveWindow())
        return;
    drawingWindow_.activate();
    shared_.interaction.dialogs.setFrontWindow(this);
    // The switches belong to the program; another window may have changed them.
    showSnap();
}

void MainWindow::closeEvent(QCloseEvent* event) {
    if (closing_.hasToWait()) {
        event->ignore();
        return;
    }
    event->setAccepted(settleChanges() == Saved::Yes);
    if (!event->isAccepted())
        return;
    Q_EMIT closing();
    unsaved_.giveUp();
}

} // namespace easel::window
