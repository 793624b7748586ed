// Exchanges one character for another.
#include "easel/window/dialogs/LocalNumbers.h"

#include <QLocale>

#include <array>
#include <utility>

namespace easel::window {
namespace {

constexpr int kDigits = 10;

// Plain characters of numbers beside the user's. Signs of more than one character stay plain ones.
using Signs = std::array<std::pair<QChar, QChar>, kDigits + 1>;

Signs usersSigns() {
    const QLocale locale;
    const auto single = [](const QString& sign, QChar plain) { return sign.size() == 1 ? sign[0] : plain; };
    Signs signs{};
    for (int digit = 0; digit < kDigits; ++digit) {
        const QChar plain(u'0' + digit);
        signs[static_cast<std::size_t>(digit)] = {plain, single(locale.toString(digit), plain)};
    }
    const QChar point = u'.';
    signs[kDigits] = {point, single(locale.decimalPoint(), point)};
    return signs;
}

} // namespace

QString inUsersDigits(QString plain) {
    for (const auto& [own, users] : usersSigns())
        plain.replace(own, users);
    return plain;
}

QString inPlainDigits(QString typed) {
    for (const auto& [own, users] : usersSigns())
        typed.replace(users, own);
    return typed;
}

} // namespace easel::window
