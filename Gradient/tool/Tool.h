// The tool in the host's palette: its registration, its options and its cursor.
#pragma once

class DWindow;

/// The host's plain cursor for tools: what the tool shows unless Option is down, and during a drag.
inline constexpr short kToolCursor = 606;

/// Adds the tool to the palette and installs its callbacks.
void InitTool();

/// The options callback: edits the current gradient in place.
void GradientOptions();

/// The cursor callback: shows in the window what a click would do, by the Option key.
void GradientCursor(DWindow* window);
