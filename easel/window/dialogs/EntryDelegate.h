// How the list of a popup paints its entries.
#pragma once

#include <QStyledItemDelegate>

namespace easel::window {

// Lines between groups as lines, and room for a picture beside each text. A picture is asked for when its
// entry comes into sight and not before.
class EntryDelegate : public QStyledItemDelegate {
    Q_OBJECT

  public:
    using QStyledItemDelegate::QStyledItemDelegate;

    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;
    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;
};

} // namespace easel::window
