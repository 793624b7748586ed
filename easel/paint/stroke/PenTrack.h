// The way a pen takes along an outline: points joined by straight lines, cut into dashes.
#pragma once

#include "easel/drawing/Path.h"
#include "easel/drawing/Style.h"

#include <vector>

namespace easel::paint {

enum class Turn : unsigned char {
    Corner, // the stroke's join shows
    Smooth  // a point of a flattened curve, rounded whatever the join
};

struct TrackPoint {
    drawing::Point at;
    Turn turn = Turn::Corner;
};

// No two neighbouring points are equal or nearly so, the last and the first of a closed track included. A
// track of a single point is a dot: a subpath without length.
struct PenTrack {
    std::vector<TrackPoint> points;
    bool closed = false;
    drawing::Point direction{1, 0}; // of a dot, a unit vector
};

// Curves stray at most `tolerance`. Points that are not finite are left out; so are subpaths that are a mere
// move.
std::vector<PenTrack> penTracks(const drawing::Path& outline, double tolerance);

// The parts of the tracks that lie under a dash. Dashes are an even number of lengths, none negative; each
// track begins the pattern anew at `offset`. A closed track that begins and ends inside a dash has it in one
// piece.
std::vector<PenTrack> dashed(const std::vector<PenTrack>& tracks, const std::vector<double>& dashes,
                             double offset);

// How many dashes there would be.
double dashCount(const std::vector<PenTrack>& tracks, const std::vector<double>& dashes);

} // namespace easel::paint
