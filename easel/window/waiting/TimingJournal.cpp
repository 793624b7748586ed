// Picks the events that tell when something happened and when it was shown.
#include "easel/window/waiting/TimingJournal.h"

#include <QInputEvent>
#include <QPaintEvent>
#include <QWidget>
#include <QWindow>

#include <chrono>

namespace easel::window {
namespace {

long long microseconds() {
    using namespace std::chrono;
    return duration_cast<std::chrono::microseconds>(steady_clock::now().time_since_epoch()).count();
}

const char* inputName(QEvent::Type type) {
    switch (type) {
    case QEvent::MouseButtonPress:
        return "press";
    case QEvent::MouseButtonRelease:
        return "release";
    case QEvent::MouseMove:
        return "move";
    case QEvent::Wheel:
        return "wheel";
    // Every key begins with this, and those of shortcuts end with it.
    case QEvent::ShortcutOverride:
        return "key";
    default:
        return nullptr;
    }
}

long long areaOf(const QRegion& region) {
    long long area = 0;
    for (const QRect& part : region)
        area += static_cast<long long>(part.width()) * part.height();
    return area;
}

QString titleOf(const QObject& window) {
    return window.isWidgetType() ? static_cast<const QWidget&>(window).windowTitle()
                                 : static_cast<const QWindow&>(window).title();
}

} // namespace

std::unique_ptr<TimingJournal> TimingJournal::ofEnvironment() {
    const QByteArray name = qgetenv("EASEL_TIMES");
    std::FILE* file = name.isEmpty() ? nullptr : std::fopen(name.constData(), "w");
    return file ? std::unique_ptr<TimingJournal>(new TimingJournal(file)) : nullptr;
}

TimingJournal::~TimingJournal() {
    std::fclose(file_);
}

void TimingJournal::begins(QObject& receiver, const QEvent& event) {
    if (receiver.isWidgetType() && event.type() == QEvent::Paint) {
        const auto& widget = static_cast<const QWidget&>(receiver);
        const QRegion area = static_cast<const QPaintEvent&>(event).region();
        painted_ += area.translated(widget.mapTo(widget.window(), QPoint()));
        return;
    }
    // Events reach a window before they reach its widgets.
    const char* const input = inputName(event.type());
    if (!input || !receiver.isWindowType())
        return;
    const auto sent = static_cast<unsigned long long>(static_cast<const QInputEvent&>(event).timestamp());
    std::fprintf(file_, "%lld %s %llu %s\n", microseconds(), input, sent, qUtf8Printable(titleOf(receiver)));
    std::fflush(file_);
}

// A window paints all that is due and hands it to the screen while it handles one of these two.
void TimingJournal::ended(const QObject& receiver, QEvent::Type type) {
    if (painted_.isEmpty() || (type != QEvent::UpdateRequest && type != QEvent::Expose))
        return;
    std::fprintf(file_, "%lld painted %lld %s\n", microseconds(), areaOf(std::exchange(painted_, {})),
                 qUtf8Printable(titleOf(receiver)));
    std::fflush(file_);
}

} // namespace easel::window
