// The tool in the host's palette: its registration, its options and its cursor.
#pragma once

class DWindow;

/// Adds the tool to the palette and installs its callbacks.
void InitTool();

/// The options callback: edits the current gradient in place.
void GradientOptions();

/// The cursor callback: shows in the window what a click would do, by the Option key.
void GradientCursor(DWindow* window);
