// The gradient that a click of a tool gives to a shape.
#pragma once

#include "host/Gradient.h"

#include <optional>

struct HostTool;

namespace easel::runtime {

class Process;

// Tools keep their current gradient to themselves, so the tool is made to click on a shape that nobody sees,
// with no key held. Nothing if it gives the shape no gradient. Not to be called while the tool is at work.
std::optional<CGradientData> currentGradientOf(const HostTool& tool, Process& process);

} // namespace easel::runtime
