// Keeps the line editor and the model's text and selection in step.
#include "easel/window/dialogs/EditItem.h"

#include "easel/window/dialogs/LocalNumbers.h"

#include <QApplication>
#include <QFocusEvent>
#include <QScopedValueRollback>
#include <QToolTip>

#include <utility>

namespace easel::window {
namespace {

// The first character that is in one text and not at the same place of the other, as the user typed or pasted
// it.
QString firstNewCharacter(const QString& before, const QString& after) {
    qsizetype at = 0;
    while (at < before.size() && at < after.size() && before[at] == after[at])
        ++at;
    if (at >= after.size())
        return {};
    return after[at].isHighSurrogate() ? after.mid(at, 2) : QString(after[at]);
}

} // namespace

EditItem::EditItem(runtime::Dialog& dialog, int item, QWidget* parent)
    : QLineEdit(parent), dialog_(dialog), item_(item) {
    connect(this, &QLineEdit::textEdited, this, &EditItem::edited);
    connect(this, &QLineEdit::selectionChanged, this, &EditItem::selectionMoved);
    connect(this, &QLineEdit::cursorPositionChanged, this, &EditItem::selectionMoved);
    modelChanged(runtime::ItemChange::Text);
}

void EditItem::modelChanged(runtime::ItemChange) {
    const QScopedValueRollback following(following_, true);
    const runtime::DialogItem& item = *dialog_.item(item_);
    const QString text = shownText();
    if (text != this->text())
        setText(text);
    setEnabled(item.enabled);
    if (item.selection.from == item.selection.to)
        setCursorPosition(item.selection.to);
    else
        setSelection(item.selection.from, item.selection.to - item.selection.from);
}

QString EditItem::shownText() const {
    const runtime::DialogItem& item = *dialog_.item(item_);
    const QString text = QString::fromStdString(item.shownText());
    return item.isNumber ? inUsersDigits(text) : text;
}

void EditItem::edited(const QString& text) {
    const int caret = cursorPosition();
    const QString plain = dialog_.item(item_)->isNumber ? inPlainDigits(text) : text;
    if (dialog_.enterText(item_, plain.toStdString()) == runtime::EditOutcome::Refused) {
        refuse(text);
        return;
    }
    dialog_.selectText(item_, {caret, caret});
}

void EditItem::refuse(const QString& attempted) {
    const QString character = firstNewCharacter(shownText(), attempted);
    modelChanged(runtime::ItemChange::Text);
    QApplication::beep();
    const QString reason =
        tr("\u201c%1\u201d cannot be used here: names are kept in the Mac Roman alphabet.").arg(character);
    QToolTip::showText(mapToGlobal(rect().bottomLeft()), reason, this, {}, 5000);
    setAccessibleDescription(reason);
}

void EditItem::focusInEvent(QFocusEvent* event) {
    QLineEdit::focusInEvent(event);
    entered_ = event->reason() == Qt::MouseFocusReason;
}

// Whoever clicks into the field wants to type another text, as one who gets there with the Tab key.
void EditItem::mouseReleaseEvent(QMouseEvent* event) {
    QLineEdit::mouseReleaseEvent(event);
    if (std::exchange(entered_, false) && !hasSelectedText())
        selectAll();
}

// A click in the field counts as a hit of it, like a keystroke.
void EditItem::mousePressEvent(QMouseEvent* event) {
    QLineEdit::mousePressEvent(event);
    dialog_.hit(item_);
}

void EditItem::selectionMoved() {
    if (following_)
        return;
    const int from = hasSelectedText() ? static_cast<int>(selectionStart()) : cursorPosition();
    const int to = hasSelectedText() ? static_cast<int>(selectionEnd()) : cursorPosition();
    const QScopedValueRollback following(following_, true);
    dialog_.selectText(item_, {from, to});
}

} // namespace easel::window
