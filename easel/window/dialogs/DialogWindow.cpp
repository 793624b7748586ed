// Builds the controls of a dialog and keeps them in step with its model.
#include "easel/window/dialogs/DialogWindow.h"

#include "easel/window/dialogs/DialogContent.h"
#include "easel/window/dialogs/EditItem.h"
#include "easel/window/dialogs/UserItem.h"

#include <QApplication>
#include <QDialogButtonBox>
#include <QEvent>
#include <QKeyEvent>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>
#include <vector>

namespace easel::window {
namespace {

std::uint32_t rgb(const QColor& color) {
    return color.rgb() & 0xffffffU;
}

QColor mixed(const QColor& a, const QColor& b, double share) {
    const auto channel = [share](int from, int to) { return static_cast<int>(from + (to - from) * share); };
    return {channel(a.red(), b.red()), channel(a.green(), b.green()), channel(a.blue(), b.blue())};
}

// How far the ground of black marks moves from a dark desktop's ground towards its text.
constexpr double kMarkGround = 0.55;

runtime::DialogTheme themeOf(const QPalette& palette) {
    const QColor ground = palette.color(QPalette::Window);
    const QColor text = palette.color(QPalette::WindowText);
    const bool dark = ground.lightness() < text.lightness();
    const QColor seen = mixed(ground, text, kMarkGround);
    return {rgb(ground), rgb(mixed(ground, text, 0.18)), rgb(mixed(ground, QColor(Qt::black), 0.24)),
            rgb(dark ? seen : ground), dark ? std::optional(rgb(seen)) : std::nullopt};
}

ItemWidget* makeItemWidget(runtime::Dialog& dialog, const runtime::DialogItem& item,
                           const EntryPicture& picture, DialogContent& content) {
    switch (item.kind) {
    case runtime::ItemKind::Button:
        return new ButtonItem(dialog, item.number, &content);
    case runtime::ItemKind::StaticText:
        return new LabelItem(dialog, item.number, &content);
    case runtime::ItemKind::EditText:
        return new EditItem(dialog, item.number, &content);
    case runtime::ItemKind::UserDrawn:
        return new UserItem(dialog, item.number, content);
    case runtime::ItemKind::Popup:
        return new PopupItem(dialog, item.number, picture, &content);
    case runtime::ItemKind::Radio:
        return new RadioItem(dialog, item.number, &content);
    }
    return nullptr;
}

} // namespace

DialogWindow::DialogWindow(runtime::Dialog& dialog, PointerTracker& pointer, const EntryPicture& picture,
                           QWidget* parent)
    : QDialog(parent, Qt::Dialog | Qt::WindowTitleHint | Qt::WindowCloseButtonHint), dialog_(dialog),
      content_(new DialogContent(dialog, pointer, this)) {
    setWindowTitle(QString::fromStdString(dialog.title()));
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSizeConstraint(QLayout::SetFixedSize);
    layout->addWidget(content_);
    for (const runtime::DialogItem& item : dialog.items())
        addItem(item, picture);
    putButtonsInOrder();
    orderForTab();
    dialog_.setObserver(this);
    connect(qApp, &QApplication::focusChanged, this, [this](QWidget*, QWidget* now) { followFocus(now); });
    matchScreen();
    focusChanged();
}

DialogWindow::~DialogWindow() {
    // Controls that go away hand the focus on; nobody is to follow it any more.
    disconnect(qApp, nullptr, this, nullptr);
    dialog_.setObserver(nullptr);
}

void DialogWindow::addItem(const runtime::DialogItem& item, const EntryPicture& picture) {
    ItemWidget* made = makeItemWidget(dialog_, item, picture, *content_);
    items_[item.number] = made;
    QWidget* widget = made->widget();
    widget->setGeometry(item.bounds.left, item.bounds.top, item.bounds.width(), item.bounds.height());
    widget->setToolTip(QString::fromStdString(item.tooltip));
    if (!item.accessibleName.empty())
        widget->setAccessibleName(QString::fromStdString(item.accessibleName));
    if (item.divider) {
        widget->setFocusPolicy(Qt::NoFocus);
        widget->setAttribute(Qt::WA_TransparentForMouseEvents);
    }
}

// Where the desktop puts the button that accepts before the one that cancels, so does this dialog, whatever
// its author did; the two then take each other's place.
void DialogWindow::putButtonsInOrder() {
    const auto accept = items_.find(kDefaultItem);
    const auto cancel = items_.find(kCancelItem);
    if (accept == items_.end() || cancel == items_.end())
        return;
    QWidget* const first = accept->second->widget();
    QWidget* const second = cancel->second->widget();
    if (!qobject_cast<QPushButton*>(first) || !qobject_cast<QPushButton*>(second) ||
        first->y() != second->y())
        return;
    const int layout = style()->styleHint(QStyle::SH_DialogButtonLayout, nullptr, this);
    const bool wanted = layout == QDialogButtonBox::WinLayout || layout == QDialogButtonBox::KdeLayout;
    if ((first->x() < second->x()) == wanted)
        return;
    const QRect all = first->geometry() | second->geometry();
    QWidget* const left = wanted ? first : second;
    QWidget* const right = wanted ? second : first;
    left->move(all.left(), left->y());
    right->move(all.right() + 1 - right->width(), right->y());
}

// As the eye reads, whatever the numbers of the items.
void DialogWindow::orderForTab() {
    std::vector<QWidget*> inOrder;
    for (const auto& [number, item] : items_)
        if (item->widget()->focusPolicy() != Qt::NoFocus)
            inOrder.push_back(item->widget());
    std::sort(inOrder.begin(), inOrder.end(), [](const QWidget* a, const QWidget* b) {
        return std::pair(a->y(), a->x()) < std::pair(b->y(), b->x());
    });
    for (std::size_t i = 1; i < inOrder.size(); ++i)
        setTabOrder(inOrder[i - 1], inOrder[i]);
}

void DialogWindow::itemChanged(int item, runtime::ItemChange change) {
    const auto found = items_.find(item);
    if (found != items_.end() && change != runtime::ItemChange::Invalid)
        found->second->modelChanged(change);
}

void DialogWindow::focusChanged() {
    const auto found = items_.find(dialog_.focus());
    if (found == items_.end() || found->second->widget()->hasFocus())
        return;
    found->second->widget()->setFocus();
    found->second->modelChanged(runtime::ItemChange::Selection);
}

// The Tab key or a click moved the focus on the desktop's side.
void DialogWindow::followFocus(const QWidget* now) {
    for (const auto& [number, item] : items_)
        if (item->widget() == now && dialog_.focus() != number)
            dialog_.setFocus(number);
}

void DialogWindow::pixelsDrawn(const paint::PixelRect& area) {
    content_->update(QRect(area.left, area.top, area.width(), area.height()).adjusted(-1, -1, 1, 1));
}

// Escape, and the window's own close button, are a hit of the Cancel item.
void DialogWindow::reject() {
    dialog_.hit(kCancelItem);
}

void DialogWindow::keyPressEvent(QKeyEvent* event) {
    // Escape gives up the least that is going on.
    if (event->key() == Qt::Key_Escape && content_->takeBackDrag())
        return;
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
        dialog_.hit(kDefaultItem);
        return;
    }
    QDialog::keyPressEvent(event);
}

void DialogWindow::programIs(Program program) {
    program_ = program;
    if (program_ == Program::Waiting && std::exchange(unmatched_, false))
        matchScreen();
    content_->setReady(program_ == Program::Waiting);
}

// Whoever tracks the mouse takes off the lines it drew by drawing them again, and clips what is drawn. So the
// image stays as it is until that is over, and is shown larger or smaller meanwhile.
void DialogWindow::matchScreen() {
    if (program_ == Program::Busy) {
        unmatched_ = true;
        return;
    }
    dialog_.setScreen({devicePixelRatioF(), themeOf(palette())});
    dialog_.drawInvalidItems();
    content_->update();
}

bool DialogWindow::event(QEvent* event) {
    const bool handled = QDialog::event(event);
    if (event->type() == QEvent::ScreenChangeInternal)
        matchScreen();
    return handled;
}

void DialogWindow::changeEvent(QEvent* event) {
    QDialog::changeEvent(event);
    if (event->type() == QEvent::PaletteChange)
        matchScreen();
}

void DialogWindow::showEvent(QShowEvent* event) {
    QDialog::showEvent(event);
    matchScreen();
}

} // namespace easel::window
