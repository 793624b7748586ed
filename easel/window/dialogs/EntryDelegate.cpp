// A line is a row of its own.
#include "easel/window/dialogs/EntryDelegate.h"

#include <QPainter>

#include <algorithm>

namespace easel::window {
namespace {

constexpr int kLineRow = 9;
constexpr int kLeastRow = 22;
constexpr int kMargin = 4;

// The mark by which combo boxes know a line.
bool isLine(const QModelIndex& index) {
    return index.data(Qt::AccessibleDescriptionRole).toString() == QLatin1String("separator");
}

} // namespace

QSize EntryDelegate::sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const {
    if (isLine(index))
        return {1, kLineRow};
    const QString text = index.data(Qt::DisplayRole).toString();
    return {option.fontMetrics.horizontalAdvance(text) + option.decorationSize.width() + 4 * kMargin,
            std::max(kLeastRow, option.fontMetrics.height() + 2 * kMargin)};
}

void EntryDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                          const QModelIndex& index) const {
    if (!isLine(index)) {
        QStyledItemDelegate::paint(painter, option, index);
        return;
    }
    QColor color = option.palette.color(QPalette::Text);
    color.setAlphaF(0.25F);
    const QRect& row = option.rect;
    painter->fillRect(row.left() + kMargin, row.center().y(), row.width() - 2 * kMargin, 1, color);
}

} // namespace easel::window
