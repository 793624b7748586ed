// The dialogs of the gradient menu.
#include "easel/window/dialogs/GradientQuestions.h"

#include "easel/window/dialogs/NumberField.h"
#include "easel/window/waiting/DialogStack.h"

#include <QDialog>
#include <QDialogButtonBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QSlider>
#include <QSpinBox>
#include <QVBoxLayout>

namespace easel::window {
namespace {

constexpr double kTurn = 360;
constexpr int kUnchanged = 100; // percent
constexpr int kMostOpacity = 200;

QDialogButtonBox* okAndCancel(QDialog& dialog) {
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    QObject::connect(buttons, &QDialogButtonBox::accepted, &dialog, &QDialog::accept);
    QObject::connect(buttons, &QDialogButtonBox::rejected, &dialog, &QDialog::reject);
    return buttons;
}

} // namespace

std::optional<double> askForAngle(double start, DialogStack& dialogs) {
    QDialog dialog(dialogs.parentForNext());
    dialog.setWindowTitle(QObject::tr("Angle"));
    auto* field = new NumberField;
    field->setDecimals(2);
    field->setRange(-kTurn, kTurn);
    field->setValue(start);
    auto* label = new QLabel(QObject::tr("Direction in degrees, counter-clockwise; 0 is to the right:"));
    label->setBuddy(field);
    auto* layout = new QVBoxLayout(&dialog);
    layout->addWidget(label);
    layout->addWidget(field);
    layout->addWidget(okAndCancel(dialog));
    field->setFocus();
    field->selectAll();
    return dialogs.run(dialog) ? std::optional(field->value()) : std::nullopt;
}

bool askForOpacity(const std::function<void(double factor)>& show, DialogStack& dialogs) {
    QDialog dialog(dialogs.parentForNext());
    dialog.setWindowTitle(QObject::tr("Opacity"));
    auto* slider = new QSlider(Qt::Horizontal);
    slider->setMinimumWidth(240);
    auto* field = new QSpinBox;
    field->setSuffix(QObject::tr(" %"));
    slider->setRange(0, kMostOpacity);
    field->setRange(0, kMostOpacity);
    slider->setValue(kUnchanged);
    field->setValue(kUnchanged);
    QObject::connect(slider, &QSlider::valueChanged, field, &QSpinBox::setValue);
    QObject::connect(field, &QSpinBox::valueChanged, slider, &QSlider::setValue);
    QObject::connect(field, &QSpinBox::valueChanged, &dialog,
                     [&show](int percent) { show(percent / static_cast<double>(kUnchanged)); });

    auto* label = new QLabel(QObject::tr("&Share of the present opacity:"));
    label->setBuddy(field);
    auto* row = new QHBoxLayout;
    row->addWidget(slider, 1);
    row->addWidget(field);
    auto* layout = new QVBoxLayout(&dialog);
    layout->addWidget(label);
    layout->addLayout(row);
    layout->addWidget(okAndCancel(dialog));
    field->setFocus();
    field->selectAll();
    return dialogs.run(dialog);
}

} // namespace easel::window
