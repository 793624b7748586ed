// The drawing as a canvas of list items, one for each shape, from back to front.
#include "easel/window/canvas/CanvasAccess.h"

#include "easel/window/canvas/Canvas.h"
#include "easel/window/canvas/ShapeText.h"

#include <QAccessibleWidget>
#include <QPointer>

#include <map>

namespace easel::window {
namespace {

// Stands for the shape at an index, whichever that is by now; invalid without one.
class ShapeAccess : public QAccessibleInterface, public QAccessibleActionInterface {
  public:
    ShapeAccess(Canvas& canvas, std::size_t index) : canvas_(&canvas), index_(index) {}

    bool isValid() const override { return canvas_ && index_ < canvas_->drawingWindow().drawing().size(); }
    QObject* object() const override { return nullptr; }
    QAccessibleInterface* parent() const override {
        return canvas_ ? QAccessible::queryAccessibleInterface(canvas_) : nullptr;
    }
    QAccessibleInterface* child(int) const override { return nullptr; }
    int childCount() const override { return 0; }
    int indexOfChild(const QAccessibleInterface*) const override { return -1; }
    QAccessibleInterface* childAt(int, int) const override { return nullptr; }
    QString text(QAccessible::Text text) const override;
    void setText(QAccessible::Text, const QString&) override {}
    QRect rect() const override { return isValid() ? canvas_->onScreen(shape().bounds) : QRect(); }
    QAccessible::Role role() const override { return QAccessible::ListItem; }
    QAccessible::State state() const override;
    void* interface_cast(QAccessible::InterfaceType type) override {
        return type == QAccessible::ActionInterface ? static_cast<QAccessibleActionInterface*>(this)
                                                    : nullptr;
    }
    QStringList actionNames() const override { return {pressAction()}; }
    void doAction(const QString&) override {
        if (isValid())
            canvas_->selectOnly(index_);
    }
    QStringList keyBindingsForAction(const QString&) const override { return {}; }

  private:
    const drawing::Object& shape() const { return *canvas_->drawingWindow().drawing().object(index_); }

    QPointer<Canvas> canvas_;
    std::size_t index_;
};

QString ShapeAccess::text(QAccessible::Text text) const {
    if (!isValid())
        return {};
    if (text == QAccessible::Name)
        return shapeName(shape());
    return text == QAccessible::Description ? fillText(shape()) : QString();
}

QAccessible::State ShapeAccess::state() const {
    QAccessible::State state;
    state.invalid = !isValid();
    if (state.invalid)
        return state;
    state.selectable = state.focusable = true;
    state.selected = canvas_->drawingWindow().drawing().selected(index_);
    state.focused = state.selected && canvas_->hasFocus();
    return state;
}

class CanvasAccess : public QAccessibleWidget {
  public:
    explicit CanvasAccess(Canvas& canvas)
        : QAccessibleWidget(&canvas, QAccessible::Canvas), canvas_(canvas),
          following_(QObject::connect(&canvas, &Canvas::shapeChosen, &canvas, [this] { tellChosen(); })) {}
    ~CanvasAccess() override {
        QObject::disconnect(following_);
        for (const auto& [index, id] : shapes_)
            QAccessible::deleteAccessibleInterface(id);
    }
    CanvasAccess(const CanvasAccess&) = delete;
    CanvasAccess& operator=(const CanvasAccess&) = delete;

    int childCount() const override { return static_cast<int>(canvas_.drawingWindow().drawing().size()); }
    QAccessibleInterface* child(int index) const override;
    int indexOfChild(const QAccessibleInterface* child) const override;
    QAccessibleInterface* childAt(int x, int y) const override;
    QAccessibleInterface* focusChild() const override;

  private:
    void tellChosen();

    Canvas& canvas_;
    QMetaObject::Connection following_;
    mutable std::map<int, QAccessible::Id> shapes_; // those that somebody has asked for
};

QAccessibleInterface* CanvasAccess::child(int index) const {
    if (index < 0 || index >= childCount())
        return nullptr;
    const auto [found, isNew] = shapes_.try_emplace(index);
    if (isNew)
        found->second = QAccessible::registerAccessibleInterface(
            new ShapeAccess(canvas_, static_cast<std::size_t>(index)));
    return QAccessible::accessibleInterface(found->second);
}

int CanvasAccess::indexOfChild(const QAccessibleInterface* child) const {
    for (const auto& [index, id] : shapes_)
        if (QAccessible::accessibleInterface(id) == child)
            return index;
    return -1;
}

QAccessibleInterface* CanvasAccess::childAt(int x, int y) const {
    const QPointF place = canvas_.viewport()->mapFromGlobal(QPointF(x, y));
    const auto hit =
        canvas_.drawingWindow().drawing().pick(canvas_.toLocal(place), 0, drawing::KindSet::all());
    return hit ? child(static_cast<int>(*hit)) : nullptr;
}

QAccessibleInterface* CanvasAccess::focusChild() const {
    const std::vector<std::size_t> selection = canvas_.drawingWindow().drawing().selection();
    return canvas_.hasFocus() && selection.size() == 1 ? child(static_cast<int>(selection.front())) : nullptr;
}

void CanvasAccess::tellChosen() {
    QAccessibleInterface* const shape = focusChild();
    if (!shape)
        return;
    QAccessibleEvent focused(shape, QAccessible::Focus);
    QAccessible::updateAccessibility(&focused);
}

QAccessibleInterface* accessToCanvas(const QString&, QObject* object) {
    auto* const canvas = qobject_cast<Canvas*>(object);
    return canvas ? new CanvasAccess(*canvas) : nullptr;
}

} // namespace

void installCanvasAccess() {
    QAccessible::installFactory(accessToCanvas);
}

} // namespace easel::window
