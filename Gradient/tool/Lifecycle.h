// What happens when the host starts the plug-in and shuts it down.
#pragma once

/// Registers the tool, loads the current gradient and locates the template folder, in that order.
void Init();

/// Saves the current gradient. The tool stays registered.
void CleanUp();

/// Hooks for what an object kind may need before the first and after the last click. No kind needs anything;
/// they are kept, empty, as the one place for it. Shutting down runs the second, starting up does not run the
/// first.
void InitGradientMethods();
void CleanupMethods();
