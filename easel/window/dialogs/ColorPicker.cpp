// Keeps the color dialog and the 16-bit fields in step.
#include "easel/window/dialogs/ColorPicker.h"

#include "easel/window/waiting/DialogStack.h"

#include <QColorDialog>
#include <QDialogButtonBox>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QSignalBlocker>
#include <QSpinBox>
#include <QVBoxLayout>

namespace easel::window {
namespace {

int narrowed(std::uint16_t channel) {
    return (channel * 255 + 32767) / 65535;
}

QColor toScreen(const drawing::Rgb16& color) {
    return {narrowed(color.red), narrowed(color.green), narrowed(color.blue)};
}

// What a channel becomes when the dialog shows this level.
std::uint16_t following(std::uint16_t channel, int level) {
    return narrowed(channel) == level ? channel : static_cast<std::uint16_t>(level * 257);
}

} // namespace

ColorPicker::ColorPicker(const QString& prompt, const drawing::Rgb16& start, QWidget* parent)
    : QDialog(parent), color_(start), dialog_(new QColorDialog(toScreen(start))), channels_{} {
    setWindowTitle(prompt);
    dialog_->setWindowFlags(Qt::Widget);
    dialog_->setOptions(QColorDialog::NoButtons | QColorDialog::DontUseNativeDialog);
    dialog_->setCurrentColor(toScreen(start));
    dialog_->layout()->setContentsMargins(0, 0, 0, 0);
    dialog_->installEventFilter(this);
    // Return is for OK.
    for (QPushButton* button : dialog_->findChildren<QPushButton*>()) {
        button->setAutoDefault(false);
        button->setDefault(false);
    }

    auto* exact = new QHBoxLayout;
    exact->addWidget(new QLabel(tr("Exact values:")));
    const std::array names{tr("Red"), tr("Green"), tr("Blue")};
    for (std::size_t i = 0; i < channels_.size(); ++i) {
        auto* field = new QSpinBox;
        field->setRange(0, 65535);
        field->setAccessibleName(tr("%1, 16 bits").arg(names[i]));
        field->setToolTip(tr("%1 from 0 to 65535").arg(names[i]));
        field->setPrefix(names[i].left(1) + QStringLiteral("  "));
        connect(field, &QSpinBox::valueChanged, this, &ColorPicker::typedChannels);
        exact->addWidget(field, 1);
        channels_[i] = field;
    }
    showChannels();

    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    buttons->button(QDialogButtonBox::Ok)->setDefault(true);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    connect(dialog_, &QColorDialog::currentColorChanged, this, &ColorPicker::pickedInDialog);

    auto* layout = new QVBoxLayout(this);
    layout->setSpacing(12);
    layout->setSizeConstraint(QLayout::SetFixedSize);
    layout->addWidget(dialog_);
    layout->addLayout(exact);
    layout->addWidget(buttons);
}

// A dialog within a dialog would take Return and Escape for its own.
bool ColorPicker::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() != QEvent::KeyPress)
        return QDialog::eventFilter(watched, event);
    keyPressEvent(static_cast<QKeyEvent*>(event));
    return true;
}

void ColorPicker::pickedInDialog(const QColor& color) {
    color_ = {following(color_.red, color.red()), following(color_.green, color.green()),
              following(color_.blue, color.blue())};
    showChannels();
}

void ColorPicker::typedChannels() {
    const auto channel = [this](std::size_t i) { return static_cast<std::uint16_t>(channels_[i]->value()); };
    color_ = {channel(0), channel(1), channel(2)};
    const QSignalBlocker quiet(dialog_);
    // A color of its palette draws the keyboard there, in the middle of a number.
    QWidget* typing = focusWidget();
    dialog_->setCurrentColor(toScreen(color_));
    if (typing)
        typing->setFocus();
}

void ColorPicker::showChannels() {
    const std::array values{color_.red, color_.green, color_.blue};
    for (std::size_t i = 0; i < channels_.size(); ++i) {
        const QSignalBlocker quiet(channels_[i]);
        channels_[i]->setValue(values[i]);
    }
}

std::optional<drawing::Rgb16> askForColor(const QString& prompt, const drawing::Rgb16& start,
                                          DialogStack& dialogs) {
    ColorPicker picker(prompt, start, dialogs.parentForNext());
    return dialogs.run(picker) ? std::optional(picker.color()) : std::nullopt;
}

} // namespace easel::window
