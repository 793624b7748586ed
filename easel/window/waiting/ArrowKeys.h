// Arrow keys that stand for moves of the mouse.
#pragma once

#include <QPoint>
#include <Qt>

namespace easel::window {

// Pixels that one key makes, without Shift and with it.
inline constexpr int kSmallStep = 1;
inline constexpr int kLargeStep = 10;
inline constexpr double kSmallTurn = 1; // degrees
// What a drag with Shift keeps to.
inline constexpr double kLargeTurn = 15;

// Right and down count up; null for another key.
inline QPoint arrowOf(int key) {
    return {(key == Qt::Key_Right ? 1 : 0) - (key == Qt::Key_Left ? 1 : 0),
            (key == Qt::Key_Down ? 1 : 0) - (key == Qt::Key_Up ? 1 : 0)};
}

inline int stepOf(bool shift) {
    return shift ? kLargeStep : kSmallStep;
}

// Degrees, counter-clockwise: right and down turn the other way.
inline double turnOf(QPoint arrow, bool shift) {
    const double turn = shift ? kLargeTurn : kSmallTurn;
    return arrow.x() + arrow.y() > 0 ? -turn : turn;
}

} // namespace easel::window
