// The desktop's color picker with the exact 16-bit channels beneath it.
#pragma once

#include <QColor>
#include <QDialog>

#include <array>
#include <cstdint>
#include <optional>

class QColorDialog;
class QSpinBox;

namespace easel::window {

class DialogStack;

struct ExactColor {
    std::uint16_t red = 0;
    std::uint16_t green = 0;
    std::uint16_t blue = 0;

    friend bool operator==(const ExactColor&, const ExactColor&) = default;
};

// Qt's color dialog knows 8 bits per channel. A channel keeps all its bits as long as the user does not
// change it there; a changed one is the dialog's value times 257. The three fields take and show all 16 bits.
class ColorPicker : public QDialog {
    Q_OBJECT

  public:
    ColorPicker(const QString& prompt, const ExactColor& start, QWidget* parent);

    const ExactColor& color() const { return color_; }

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void pickedInDialog(const QColor& color);
    void typedChannels();
    void showChannels();

    ExactColor color_;
    QColorDialog* dialog_;
    std::array<QSpinBox*, 3> channels_;
};

// Lets the user pick a color; empty when cancelled.
std::optional<ExactColor> askForColor(const QString& prompt, const ExactColor& start, DialogStack& dialogs);

} // namespace easel::window
