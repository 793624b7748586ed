// Answers the host's questions with windows, dialogs and the mouse.
#include "easel/window/main/DesktopUser.h"

#include "easel/runtime/Alert.h"
#include "easel/runtime/DeletionList.h"
#include "easel/runtime/Dialog.h"
#include "easel/window/canvas/Canvas.h"
#include "easel/window/dialogs/ColorPicker.h"
#include "easel/window/dialogs/DeletionDialog.h"
#include "easel/window/dialogs/DialogWindow.h"
#include "easel/window/dialogs/Messages.h"
#include "host/Drawing.h"

#include <QApplication>
#include <QDialog>
#include <QKeyEvent>
#include <QMessageBox>

#include <algorithm>

namespace easel::window {

// A key that is pressed while the plug-in follows the mouse is one for the dialog, once the mouse is up.
struct DesktopUser::ShownDialog {
    ShownDialog(runtime::Dialog& dialog, DesktopUser& user)
        : window(dialog, user, user.parentForDialogs()), keys(user.gate_, &window, InputGate::Hears::Keys) {}

    DialogWindow window;
    InputGate::Scope keys;
};

DesktopUser::DesktopUser(QObject* parent) : QObject(parent) {
    qApp->installEventFilter(this);
}

DesktopUser::~DesktopUser() = default;

void DesktopUser::addCanvas(Canvas& canvas) {
    canvases_[&canvas.drawingWindow()] = &canvas;
}

void DesktopUser::removeCanvas(Canvas& canvas) {
    pointer_.forget(canvas);
    canvases_.erase(&canvas.drawingWindow());
}

Canvas* DesktopUser::canvasOf(const runtime::DrawingWindow& window) const {
    const auto found = canvases_.find(&window);
    return found == canvases_.end() ? nullptr : found->second;
}

// Sees every key and mouse event first, so that the modifier keys are those of the event being handled.
bool DesktopUser::eventFilter(QObject* receiver, QEvent* event) {
    switch (event->type()) {
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseMove:
        if (receiver->isWidgetType())
            noteModifiers(static_cast<const QInputEvent&>(*event));
        break;
    default:
        break;
    }
    return false;
}

// The event that reports a modifier key itself still carries the state from before it.
void DesktopUser::noteModifiers(const QInputEvent& event) {
    Qt::KeyboardModifiers now = event.modifiers();
    if (event.type() == QEvent::KeyPress || event.type() == QEvent::KeyRelease) {
        const bool down = event.type() == QEvent::KeyPress;
        const int key = static_cast<const QKeyEvent&>(event).key();
        if (key == Qt::Key_Shift)
            now.setFlag(Qt::ShiftModifier, down);
        else if (key == Qt::Key_Control)
            now.setFlag(Qt::ControlModifier, down);
        else if (key == Qt::Key_Alt)
            now.setFlag(Qt::AltModifier, down);
    }
    if (now == modifiers_)
        return;
    const bool hadOption = optionIsDown();
    modifiers_ = now;
    pointer_.keysChanged();
    if (optionIsDown() != hadOption)
        Q_EMIT optionKeyChanged();
}

DesktopUser::Call::Call(DesktopUser& user) : user_(user) {
    ++user_.calls_;
}

DesktopUser::Call::~Call() {
    if (--user_.calls_ > 0)
        return;
    user_.pointer_.resume();
    Q_EMIT user_.becameIdle();
}

void DesktopUser::cancelAll() {
    if (busy())
        pointer_.giveUp();
}

QWidget* DesktopUser::parentForDialogs() const {
    return open_.empty() ? frontWindow_.data() : open_.back().data();
}

bool DesktopUser::runDialog(QDialog& dialog) {
    const Call call(*this);
    const InputGate::Scope scope(gate_, &dialog);
    open_.emplace_back(&dialog);
    bool finished = false;
    const auto watching = connect(&dialog, &QDialog::finished, this, [&finished] { finished = true; });
    dialog.show();
    dialog.activateWindow();
    pointer_.sleepUntil([&finished] { return finished; });
    disconnect(watching);
    const bool accepted = finished && dialog.result() == QDialog::Accepted;
    dialog.hide();
    open_.pop_back();
    if (!open_.empty() && open_.back() != nullptr)
        open_.back()->activateWindow();
    return accepted;
}

bool DesktopUser::keyIsDown(std::uint16_t code) {
    switch (code) {
    case runtime::kShiftKey:
        return (modifiers_ & Qt::ShiftModifier) != 0;
    case runtime::kOptionKey:
        return optionIsDown();
    default:
        return false;
    }
}

void DesktopUser::present(runtime::DrawingWindow& window) {
    if (Canvas* canvas = canvasOf(window))
        canvas->presentNow();
}

void DesktopUser::repaint(runtime::DrawingWindow& window, const drawing::Box&) {
    if (Canvas* canvas = canvasOf(window))
        canvas->marked();
}

void DesktopUser::scrollTowardsMouse(runtime::DrawingWindow&) {
    pointer_.scrollTowardsMouse();
}

void DesktopUser::setCursor(runtime::DrawingWindow& window, long id) {
    if (Canvas* canvas = canvasOf(window))
        canvas->showCursor(id);
}

// Dialogs show the arrow wherever their controls have no cursor of their own, which is what 0 asks for.
void DesktopUser::setDialogCursor(long) {}

void DesktopUser::beep() {
    QApplication::beep();
}

void DesktopUser::tell(const std::string& message) {
    QMessageBox* box = makeProblemMessage(QString::fromStdString(message), parentForDialogs());
    runDialog(*box);
    box->deleteLater();
}

void DesktopUser::dialogShown(runtime::Dialog& dialog) {
    auto& shown = dialogs_[&dialog];
    shown = std::make_unique<ShownDialog>(dialog, *this);
    open_.emplace_back(&shown->window);
    shown->window.show();
    shown->window.activateWindow();
}

void DesktopUser::dialogClosed(runtime::Dialog& dialog) {
    const auto found = dialogs_.find(&dialog);
    if (found == dialogs_.end())
        return;
    std::erase(open_, &found->second->window);
    dialogs_.erase(found);
    if (QWidget* next = parentForDialogs())
        next->activateWindow();
}

std::int16_t DesktopUser::nextHit(runtime::Dialog& dialog) {
    const auto found = dialogs_.find(&dialog);
    if (found == dialogs_.end())
        return 0;
    const InputGate::Scope scope(gate_, &found->second->window);
    pointer_.sleepUntil([&dialog] { return dialog.hasHit(); });
    return pointer_.givenUp() ? std::int16_t{0} : static_cast<std::int16_t>(dialog.takeHit().value_or(0));
}

runtime::Answer DesktopUser::confirm(const runtime::Alert& alert) {
    const Question question = makeQuestion(alert, parentForDialogs());
    runDialog(*question.box);
    return question.yes() ? runtime::Answer::yes : runtime::Answer::no;
}

std::optional<RGBColor> DesktopUser::pickColor(const std::string& prompt, const RGBColor& start) {
    ColorPicker picker(QString::fromStdString(prompt), {start.red, start.green, start.blue},
                       parentForDialogs());
    if (!runDialog(picker))
        return std::nullopt;
    const ExactColor color = picker.color();
    return RGBColor{color.red, color.green, color.blue};
}

void DesktopUser::runDeletion(runtime::DeletionList& list) {
    DeletionDialog dialog(list, parentForDialogs());
    while (list.isOpen() && !pointer_.givenUp())
        list.command(runDialog(dialog) ? runtime::DeletionCommand::Ok : runtime::DeletionCommand::Cancel);
    if (list.isOpen())
        list.close();
}

} // namespace easel::window
