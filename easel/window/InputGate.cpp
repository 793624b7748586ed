// Filters the application's events.
#include "easel/window/InputGate.h"

#include <QApplication>
#include <QEvent>

namespace easel::window {
namespace {

// Moves and releases pass: a button pressed before a dialog opened has to come up where it went down.
bool isInput(QEvent::Type type) {
    switch (type) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
    case QEvent::Wheel:
    case QEvent::KeyPress:
    case QEvent::ShortcutOverride:
    case QEvent::Shortcut:
    case QEvent::ContextMenu:
    case QEvent::DragEnter:
    case QEvent::Drop:
    case QEvent::TouchBegin:
    case QEvent::TabletPress:
        return true;
    default:
        return false;
    }
}

} // namespace

InputGate::InputGate(QObject* parent) : QObject(parent) {
    qApp->installEventFilter(this);
}

InputGate::Scope::Scope(InputGate& gate, QWidget* only) : gate_(gate) {
    gate_.only_.emplace_back(only);
}

InputGate::Scope::~Scope() {
    gate_.only_.pop_back();
}

bool InputGate::admits(const QWidget& widget) const {
    // Only what is admitted can open a menu or a list of completions, and not all of them name a parent.
    if (widget.window()->windowType() == Qt::Popup)
        return true;
    for (const QWidget* at = &widget; at != nullptr; at = at->parentWidget())
        if (at == only_.back())
            return true;
    return false;
}

bool InputGate::eventFilter(QObject* receiver, QEvent* event) {
    if (only_.empty() || only_.back() == nullptr || !receiver->isWidgetType() || !isInput(event->type()))
        return false;
    if (admits(*static_cast<QWidget*>(receiver)))
        return false;
    if (event->type() == QEvent::MouseButtonPress) {
        QWidget* window = only_.back()->window();
        window->raise();
        window->activateWindow();
    }
    return true;
}

} // namespace easel::window
