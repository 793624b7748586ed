// Buttons, radio buttons, labels and popups of a dialog.
#pragma once

#include "easel/window/dialogs/ItemWidget.h"

#include <QAbstractListModel>
#include <QComboBox>
#include <QHash>
#include <QIcon>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>

#include <functional>

namespace easel::window {

// The number of the item that Return hits, and of the one that Escape hits.
inline constexpr int kDefaultItem = 1;
inline constexpr int kCancelItem = 2;

class ButtonItem : public QPushButton, public ItemWidget {
    Q_OBJECT

  public:
    ButtonItem(runtime::Dialog& dialog, int item, QWidget* parent);
    QWidget* widget() override { return this; }
    void modelChanged(runtime::ItemChange change) override;

  private:
    runtime::Dialog& dialog_;
    int item_;
};

class LabelItem : public QLabel, public ItemWidget {
    Q_OBJECT

  public:
    LabelItem(runtime::Dialog& dialog, int item, QWidget* parent);
    QWidget* widget() override { return this; }
    void modelChanged(runtime::ItemChange change) override;

  private:
    runtime::Dialog& dialog_;
    int item_;
};

// Whether it is set is for the program to say; a click is only a hit.
class RadioItem : public QRadioButton, public ItemWidget {
    Q_OBJECT

  public:
    RadioItem(runtime::Dialog& dialog, int item, QWidget* parent);
    QWidget* widget() override { return this; }
    void modelChanged(runtime::ItemChange change) override;

  protected:
    void nextCheckState() override {}

  private:
    runtime::Dialog& dialog_;
    int item_;
};

// The picture beside an entry, from its text in UTF-8, at so many pixels a unit; null for none.
using EntryPicture = std::function<QIcon(const std::string& entry, double deviceScale)>;

// A menu as a list model: texts as they stand, separators as separators, and the heading of templates as
// what cannot be chosen.
class MenuModel : public QAbstractListModel {
    Q_OBJECT

  public:
    MenuModel(const runtime::Menu& menu, EntryPicture picture, QWidget* parent)
        : QAbstractListModel(parent), menu_(menu), picture_(std::move(picture)), shown_(parent) {}
    void reload();
    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;

  private:
    QIcon pictureOf(int number) const;

    const runtime::Menu& menu_;
    EntryPicture picture_;
    const QWidget* shown_;
    mutable QHash<QString, QIcon> pictures_; // of what was in sight
    int shownCount_ = menu_.count();
};

// Choosing an entry may do something at once, so nothing is chosen in passing: the wheel does nothing, and
// keys open the list, in which typing searches.
class PopupItem : public QComboBox, public ItemWidget {
    Q_OBJECT

  public:
    PopupItem(runtime::Dialog& dialog, int item, EntryPicture picture, QWidget* parent);
    QWidget* widget() override { return this; }
    void modelChanged(runtime::ItemChange change) override;

    void showPopup() override;

  protected:
    void keyPressEvent(QKeyEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

  private:
    runtime::Dialog& dialog_;
    int item_;
    MenuModel* entries_;
};

} // namespace easel::window
