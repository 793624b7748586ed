// Filters the application's events.
#include "easel/window/waiting/InputGate.h"

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

bool isKey(QEvent::Type type) {
    return type == QEvent::KeyPress || type == QEvent::ShortcutOverride || type == QEvent::Shortcut;
}

} // namespace

InputGate::InputGate() {
    qApp->installEventFilter(this);
}

InputGate::Scope::Scope(InputGate& gate, QWidget* only, Hears hears)
    : gate_(gate), place_(gate.admitted_.insert(gate.admitted_.end(), {only, hears})) {}

InputGate::Scope::~Scope() {
    gate_.admitted_.erase(place_);
}

bool InputGate::admits(const QWidget& widget) const {
    // Only what is admitted can open a menu or a list of completions, and not all of them name a parent.
    if (widget.window()->windowType() == Qt::Popup)
        return true;
    for (const QWidget* at = &widget; at; at = at->parentWidget())
        if (at == admitted_.back().widget)
            return true;
    return false;
}

bool InputGate::eventFilter(QObject* receiver, QEvent* event) {
    if (admitted_.empty() || !admitted_.back().widget || !receiver->isWidgetType() || !isInput(event->type()))
        return false;
    if (admits(*static_cast<QWidget*>(receiver)))
        return admitted_.back().hears == Hears::Keys && !isKey(event->type());
    if (event->type() == QEvent::MouseButtonPress) {
        QWidget* window = admitted_.back().widget->window();
        window->raise();
        window->activateWindow();
    }
    return true;
}

} // namespace easel::window
