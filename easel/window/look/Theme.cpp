// The palettes for light and dark, and the question which of them the desktop prefers.
#include "easel/window/look/Theme.h"

#include "easel/window/look/EaselStyle.h"

#include <QApplication>
#include <QPalette>
#include <QProcess>
#include <QSettings>
#include <QStandardPaths>
#include <QStyle>

#include <array>
#include <functional>
#include <utility>

namespace easel::window {
namespace {

const char* const kAppearanceKey = "appearance";
// As the desktop has it is what nothing stored means.
constexpr std::array<std::pair<Appearance, const char*>, 3> kNames{
    {{Appearance::Light, "light"}, {Appearance::Dark, "dark"}, {Appearance::HighContrast, "high-contrast"}}};

constexpr int kPale = 160; // of 255; from there on black is read more easily than white

struct Shades {
    const char* window;
    const char* base;
    const char* text;
    const char* faintText;
    const char* button;
    const char* light;
    const char* midlight;
    const char* mid;
    const char* dark;
    const char* shadow;
    const char* accent;
    const char* link;
    const char* toolTip;
};

constexpr Shades kLight{"#f5f5f7", "#ffffff", "#1d1f24", "#9a9ca5", "#fdfdfe", "#ffffff", "#ececf0",
                        "#c9cad1", "#b3b5be", "#70727c", "#2f6be0", "#2458c4", "#ffffff"};
constexpr Shades kDark{"#27292d", "#1c1e21", "#e8e9ec", "#7d8088", "#383b41", "#484c53", "#3d4046",
                       "#1a1c1f", "#17181b", "#0c0d0e", "#4f8bff", "#8ab4ff", "#35383d"};

// White and yellow on black, with nothing between that would have to be told apart.
constexpr Shades kHighContrast{"#000000", "#000000", "#ffffff", "#b8b8b8", "#000000", "#ffffff", "#262626",
                               "#b8b8b8", "#000000", "#000000", "#ffe000", "#ffe000", "#000000"};

QPalette paletteOf(const Shades& shades) {
    QPalette palette;
    const auto set = [&palette](QPalette::ColorRole role, const char* color) {
        palette.setColor(role, QColor(color));
    };
    set(QPalette::Window, shades.window);
    set(QPalette::WindowText, shades.text);
    set(QPalette::Base, shades.base);
    set(QPalette::AlternateBase, shades.midlight);
    set(QPalette::Text, shades.text);
    set(QPalette::PlaceholderText, shades.faintText);
    set(QPalette::Button, shades.button);
    set(QPalette::ButtonText, shades.text);
    set(QPalette::BrightText, "#ffffff");
    set(QPalette::Light, shades.light);
    set(QPalette::Midlight, shades.midlight);
    set(QPalette::Mid, shades.mid);
    set(QPalette::Dark, shades.dark);
    set(QPalette::Shadow, shades.shadow);
    set(QPalette::Highlight, shades.accent);
    const bool isPale = qGray(QColor(shades.accent).rgb()) > kPale;
    set(QPalette::HighlightedText, isPale ? "#000000" : "#ffffff");
    set(QPalette::Link, shades.link);
    set(QPalette::LinkVisited, shades.link);
    set(QPalette::ToolTipBase, shades.toolTip);
    set(QPalette::ToolTipText, shades.text);
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        palette.setColor(QPalette::Disabled, role, QColor(shades.faintText));
    palette.setColor(QPalette::Disabled, QPalette::Highlight, QColor(shades.mid));
    return palette;
}

bool isDarkPalette(const QPalette& palette) {
    return palette.color(QPalette::Window).lightness() < palette.color(QPalette::WindowText).lightness();
}

// GNOME says what it prefers only when asked; the answer may come late, so the start does not wait for it.
void askDesktop(
    const QStringList& setting, const QByteArray& answer, const Shades& shades,
    const std::function<void()>& otherwise = [] {}) {
    const QString program = QStandardPaths::findExecutable("gsettings");
    if (program.isEmpty())
        return;
    auto* process = new QProcess(qApp);
    QObject::connect(process, &QProcess::finished, qApp, [process, answer, shades, otherwise] {
        process->deleteLater();
        if (storedAppearance() != Appearance::AsDesktop)
            return;
        if (process->readAllStandardOutput().contains(answer))
            QApplication::setPalette(paletteOf(shades));
        else
            otherwise();
    });
    process->start(program, QStringList{"get"} + setting);
}

} // namespace

void applyAppearance(Appearance appearance) {
    static const QPalette desktopPalette = QApplication::palette();
    static const bool desktopHasStyle = EaselStyle::desktopHasStyle();
    if (appearance == Appearance::AsDesktop && desktopHasStyle) {
        QApplication::setPalette(desktopPalette);
        return;
    }
    if (appearance == Appearance::HighContrast) {
        QApplication::setPalette(paletteOf(kHighContrast));
        return;
    }
    const bool dark = appearance == Appearance::Dark ||
                      (appearance == Appearance::AsDesktop && isDarkPalette(desktopPalette));
    QApplication::setPalette(paletteOf(dark ? kDark : kLight));
    if (appearance == Appearance::AsDesktop && !dark)
        askDesktop({"org.gnome.desktop.a11y.interface", "high-contrast"}, "true", kHighContrast, [] {
            askDesktop({"org.gnome.desktop.interface", "color-scheme"}, "prefer-dark", kDark);
        });
}

Appearance storedAppearance() {
    const QString stored = QSettings().value(kAppearanceKey).toString();
    for (const auto& [appearance, name] : kNames)
        if (stored == QLatin1String(name))
            return appearance;
    return Appearance::AsDesktop;
}

void storeAppearance(Appearance appearance) {
    QSettings settings;
    settings.remove(kAppearanceKey);
    for (const auto& [named, name] : kNames)
        if (named == appearance)
            settings.setValue(kAppearanceKey, QLatin1String(name));
}

bool isDark() {
    return isDarkPalette(QApplication::palette());
}

CanvasColors canvasColors() {
    if (isDark())
        return {QColor("#17181a"), QColor(0, 0, 0, 160), QColor(0, 0, 0, 70)};
    return {QColor("#e3e4e8"), QColor(0, 0, 0, 36), QColor(20, 22, 40, 14)};
}

QColor quietText() {
    const QPalette palette = QApplication::palette();
    const QColor text = palette.color(QPalette::WindowText);
    const QColor ground = palette.color(QPalette::Window);
    const auto mix = [](int a, int b) { return (a * 2 + b) / 3; };
    return {mix(text.red(), ground.red()), mix(text.green(), ground.green()),
            mix(text.blue(), ground.blue())};
}

} // namespace easel::window
