// What reaches the host's gradient drawing, whose place this program takes.
#pragma once

#include "host/Gradient.h"

#include <optional>
#include <vector>

struct DrawnGradient {
    CGradientData record;
    // Whether the plug-in said that it draws the preview.
    bool drawingToDialog;
};

// The last gradient that was drawn.
extern std::optional<DrawnGradient> gDrawn;

// Makes every drawing fail with this exception for a scope.
struct DrawingFailed {};
class FailingDrawing {
  public:
    FailingDrawing();
    FailingDrawing(const FailingDrawing&) = delete;
    FailingDrawing& operator=(const FailingDrawing&) = delete;
    ~FailingDrawing();
};

// A polygon of a rectangle that was made or freed, and whether the plug-in said that it draws the preview.
struct PolygonEvent {
    enum class What { Made, Freed } what;
    bool drawingToDialog;

    friend bool operator==(const PolygonEvent&, const PolygonEvent&) = default;
};

// What happened to polygons since it was last cleared.
extern std::vector<PolygonEvent> gPolygonEvents;
