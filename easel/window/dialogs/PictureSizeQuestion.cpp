// Width, height and resolution are one number, shown in three fields.
#include "easel/window/dialogs/PictureSizeQuestion.h"

#include "easel/window/dialogs/NumberField.h"
#include "easel/window/waiting/DialogStack.h"

#include <QDialog>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QSettings>
#include <QSignalBlocker>
#include <QSpinBox>

#include <cmath>

namespace easel::window {
namespace {

constexpr const char* kWidthKey = "pictureWidth";
constexpr const char* kResolutionKey = "pictureResolution";
constexpr double kUnitsPerInch = 96;
constexpr int kMostPixels = 1'000'000;
constexpr double kMostPerInch = 100'000;

class SizeFields {
  public:
    SizeFields(QSizeF drawing, QFormLayout& form)
        : drawing_(drawing), width_(new QSpinBox), height_(new QSpinBox), resolution_(new NumberField) {
        for (QSpinBox* side : {width_, height_}) {
            side->setRange(1, kMostPixels);
            side->setSuffix(QObject::tr(" pixels"));
        }
        resolution_->setRange(0.01, kMostPerInch);
        resolution_->setSuffix(QObject::tr(" pixels per inch"));
        form.addRow(QObject::tr("&Width:"), width_);
        form.addRow(QObject::tr("&Height:"), height_);
        form.addRow(QObject::tr("&Resolution:"), resolution_);
        QObject::connect(width_, &QSpinBox::valueChanged, width_,
                         [this](int pixels) { follow(pixels / drawing_.width(), width_); });
        QObject::connect(height_, &QSpinBox::valueChanged, height_,
                         [this](int pixels) { follow(pixels / drawing_.height(), height_); });
        QObject::connect(resolution_, &QDoubleSpinBox::valueChanged, resolution_,
                         [this](double perInch) { follow(perInch / kUnitsPerInch, resolution_); });
        recall();
        width_->selectAll();
    }

    double scale() const { return scale_; }

    // The answer is kept as what it was given as: so many pixels, or a resolution.
    void keep() const {
        QSettings settings;
        settings.remove(kWidthKey);
        settings.remove(kResolutionKey);
        if (isResolution_)
            settings.setValue(kResolutionKey, resolution_->value());
        else
            settings.setValue(kWidthKey, width_->value());
    }

  private:
    void recall() {
        const QSettings settings;
        const double width = settings.value(kWidthKey).toDouble();
        const double resolution = settings.value(kResolutionKey, kUnitsPerInch).toDouble();
        isResolution_ = !(width > 0);
        follow(isResolution_ ? resolution / kUnitsPerInch : width / drawing_.width(), nullptr);
    }

    // What the user changed stays as it was typed; the others follow.
    void follow(double scale, const QWidget* changed) {
        scale_ = scale;
        if (changed)
            isResolution_ = changed == resolution_;
        const auto show = [&](auto* field, auto value) {
            const QSignalBlocker quiet(field);
            if (field != changed)
                field->setValue(value);
        };
        const auto pixels = [](double side) {
            return static_cast<int>(std::lround(std::min(side, static_cast<double>(kMostPixels))));
        };
        show(width_, pixels(drawing_.width() * scale));
        show(height_, pixels(drawing_.height() * scale));
        show(resolution_, scale * kUnitsPerInch);
    }

    QSizeF drawing_;
    QSpinBox* width_;
    QSpinBox* height_;
    NumberField* resolution_;
    double scale_ = 1;
    bool isResolution_ = true;
};

} // namespace

std::optional<double> askForPictureScale(QSizeF drawing, DialogStack& dialogs) {
    QDialog dialog(dialogs.parentForNext());
    dialog.setWindowTitle(QObject::tr("Picture Size"));
    auto* form = new QFormLayout(&dialog);
    SizeFields fields(drawing, *form);
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    QObject::connect(buttons, &QDialogButtonBox::accepted, &dialog, &QDialog::accept);
    QObject::connect(buttons, &QDialogButtonBox::rejected, &dialog, &QDialog::reject);
    form->addRow(buttons);
    if (!dialogs.run(dialog))
        return std::nullopt;
    fields.keep();
    return fields.scale();
}

} // namespace easel::window
