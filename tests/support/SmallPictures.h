// Pictures of a few pixels as files, in base64.
#pragma once

namespace small_pictures {

// 2 x 2: red, green; blue, yellow. All opaque.
inline constexpr const char* kFourColorsPng = "iVBORw0KGgoAAAANSUhEUgAAAAIAAAACCAIAAAD91JpzAAAAFUlEQVR4nAXBAQ"
                                              "EAAACAEP9PF0JQGR7vBPykAXTzAAAAAElFTkSuQmCC";
inline constexpr const char* kFourColorsGif =
    "R0lGODdhAgACAIEAAP//AAD/AP8AAAAA/ywAAAAAAgACAAAIBwAFBBgAICAAOw==";
// 2 x 1: (200, 100, 50) of alpha 128; nothing.
inline constexpr const char* kHalfClearPng =
    "iVBORw0KGgoAAAANSUhEUgAAAAIAAAABCAYAAAD0In+KAAAAEUlEQVR4nGM4kWLUwMDAwAAADLEB32DOGawAAAAASUVORK5CYII=";
// 8 x 8, 4 x 4: all of it (120, 80, 40).
inline constexpr const char* kBrownJpeg =
    "/9j/4AAQSkZJRgABAQAAAQABAAD/2wBDABALDA4MChAODQ4SERATGCgaGBYWGDEjJR0oOjM9PDkzODdASFxOQERXRTc4UG1RV19iZ2hn"
    "Pk1xeXBkeFxlZ2P/2wBDARESEhgVGC8aGi9jQjhCY2NjY2NjY2NjY2NjY2NjY2NjY2NjY2NjY2NjY2NjY2NjY2NjY2NjY2NjY2NjY2Nj"
    "Y2P/wAARCAAIAAgDASIAAhEBAxEB/8QAFQABAQAAAAAAAAAAAAAAAAAAAAX/xAAUEAEAAAAAAAAAAAAAAAAAAAAA/8QAFAEBAAAAAAAA"
    "AAAAAAAAAAAABP/EABQRAQAAAAAAAAAAAAAAAAAAAAD/2gAMAwEAAhEDEQA/AJQARb//2Q==";
inline constexpr const char* kBrownWebp = "UklGRh4AAABXRUJQVlA4TBEAAAAvA8AAAAdQqOIVpf+BiOh/AAA=";

} // namespace small_pictures
