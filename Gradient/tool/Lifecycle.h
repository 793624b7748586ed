// What happens when the host starts the plug-in and shuts it down.
#pragma once

/// Registers the tool, loads the current gradient and locates the template folder, in that order.
void Init();

/// Saves the current gradient. The tool stays registered.
void CleanUp();

/// Hooks for object kinds that need something at start-up or shut-down; none does.
void InitGradientMethods();
void CleanupMethods();
