// Keys that stand for what the mouse does with a plug-in's tool in a selected shape.
#pragma once

#include "easel/drawing/Drawing.h"

#include <QPointF>
#include <QString>

#include <deque>
#include <optional>
#include <vector>

class QKeyEvent;

namespace easel::window {

class Canvas;

// How near to an outline a press has to be to mean the shape, in screen pixels.
inline constexpr double kToolReach = 3;
// The kinds of shapes that the tool works on.
drawing::KindSet gradientKinds();

// The button goes down at the press and up where the way ends, in the canvas's viewport.
struct ToolGesture {
    QPointF press;
    std::deque<QPointF> way;
};

// What a key does to the only selected shape. A key that is none of these, or has nothing to work on, gives
// nothing; one that cannot do its work, since the shape lies under others there, an empty gesture.
struct ToolKeyAnswer {
    std::optional<ToolGesture> gesture;
};
std::optional<ToolKeyAnswer> answerToKey(Canvas& canvas, const QKeyEvent& event);

// What the keys are and do, to be listed.
struct ToolKeyRow {
    std::vector<QKeyCombination> keys;
    QString text;
};
std::vector<ToolKeyRow> toolKeyRows();

} // namespace easel::window
