// What this host has on its desk: a drawing of rectangles in one window, and the mouse.
#pragma once

#include "host/Objects.h"
#include "host/Windows.h"

#include <memory>
#include <vector>

/// Rectangles are this host's only kind of object. Polygons are made for the plug-in and never drawn.
inline constexpr short kRectangleKind = 1;
inline constexpr short kPolygonKind = 2;

/// One rectangle in drawing coordinates. It is gray until it has a gradient.
struct HostObject {
    short kind = kRectangleKind;
    TRect<double> box;
    SharedResourcePtr<CPatRecord> pattern;
    SharedResourcePtr<CGradient> gradient;
};

/// The objects of the drawing, back to front.
struct HostObjectList {
    std::vector<std::shared_ptr<HostObject>> objects;
};

/// A window that shows the drawing at scale 1. What is selected is known by its object.
struct HostWindow {
    std::shared_ptr<HostObjectList> drawing = std::make_shared<HostObjectList>();
    std::vector<std::shared_ptr<HostObject>> selected;
};

/// The one window there is, and what the plug-in is given for it.
HostWindow& TheWindow();
DWindow& TheWindowRef();

/// A mouse that goes along a path that is known beforehand: pressed at its first point, released at its last.
class Mouse {
  public:
    void Press(std::vector<TPoint<double>> path) {
        path_ = std::move(path);
        at_ = 0;
    }
    [[nodiscard]] bool IsDown() const { return at_ + 1 < path_.size(); }
    /// Goes on to the next point of the path, if there is one, and gives the point that the mouse is at then.
    TPoint<double> Move() {
        if (IsDown()) {
            ++at_;
        }
        return path_[at_];
    }

  private:
    std::vector<TPoint<double>> path_;
    std::size_t at_ = 0;
};

Mouse& TheMouse();
