// The desktop's color picker with the exact 16-bit channels beneath it.
#pragma once

#include "easel/drawing/Color.h"

#include <QColor>
#include <QDialog>

#include <array>
#include <optional>

class QColorDialog;
class QSpinBox;

namespace easel::window {

class DialogStack;

// Qt's color dialog knows 8 bits per channel. A channel keeps all its bits as long as the user does not
// change it there; a changed one is the dialog's value times 257. The three fields take and show all 16 bits.
class ColorPicker : public QDialog {
    Q_OBJECT

  public:
    ColorPicker(const QString& prompt, const drawing::Rgb16& start, QWidget* parent);

    const drawing::Rgb16& color() const { return color_; }

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void pickedInDialog(const QColor& color);
    void typedChannels();
    void showChannels();

    drawing::Rgb16 color_;
    QColorDialog* dialog_;
    std::array<QSpinBox*, 3> channels_;
};

// Lets the user pick a color; empty when cancelled.
std::optional<drawing::Rgb16> askForColor(const QString& prompt, const drawing::Rgb16& start,
                                          DialogStack& dialogs);

} // namespace easel::window
