// The plug-in's list of strings.
#pragma once

inline constexpr short kPluginStrings = 5000;

/// Strings of the list, by number.
inline constexpr short kToolNameString = 1;
inline constexpr short kTemplateFolderString = 2;
inline constexpr short kColorPromptString = 3;
