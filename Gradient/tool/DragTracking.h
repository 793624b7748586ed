// Reshaping an object's gradient by a press or a drag on the drawing.
#pragma once

#include "host/Geometry.h"

class CGradientData;
class TessObject;

/// Lets the gesture that began at `where` (drawing coordinates) reshape the object's gradient: a drag turns a
/// linear one, a press moves the centre of any other. False if the object has no gradient; true otherwise,
/// changed or not.
bool TrackGradientObjFlow(TPoint<double> const& where, TessObject* object);

/// Shows a line from `start` to the mouse until the button is released and returns it, in drawing
/// coordinates.
TLine<double> TrackLine(TPoint<double> const& start);

/// Turns the gradient along the line: sets the angle of `data` and puts a gradient made from it on the
/// object. Changes neither if the object cannot be made a polygon.
void ReflowGradientObj(TLine<double> const& line, TessObject* object, CGradientData& data);
