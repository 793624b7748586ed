// Compares two pictures of one drawing made by different programs.
#pragma once

#include "easel/paint/pixels/Surface.h"

#include <string>

// Differences in 8-bit levels of premultiplied channels.
struct PictureDifference {
    int mostInside = 0;  // largest where neither picture has an edge nearby
    int mostAtEdges = 0; // largest elsewhere
    double apart = 0;    // share of all pixels that differ by more than a fifth of the range

    std::string text() const;
};

// A pixel is at an edge if any of the nine pixels around it differs from it by more than this many levels.
constexpr int kEdgeLevels = 10;

// Both pictures have the same size.
PictureDifference compare(const easel::paint::Surface& one, const easel::paint::Surface& other);

// Writes NAME-one.png, NAME-other.png and NAME-difference.png (differences eight times as strong) to the
// folder for test output, and says where they are.
std::string writePictures(const std::string& name, const easel::paint::Surface& one,
                          const easel::paint::Surface& other);
