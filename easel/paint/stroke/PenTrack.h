// The way a pen takes along an outline: points joined by straight lines, cut into dashes.
#pragma once

#include "easel/drawing/Path.h"
#include "easel/drawing/Style.h"

#include <cstddef>
#include <functional>
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
    // Whether an end is not that of a subpath: the pen came from, or goes on, straight from there.
    bool comesFrom = false;
    bool goesOn = false;
};

// Takes one track after the other; false ends it.
using TrackReceiver = std::function<bool(const PenTrack&)>;

// Curves stray at most `tolerance`. Points that are not finite are left out; so are subpaths that are a mere
// move. A subpath of more than about `mostPoints` comes in several tracks, each cut in the middle of a line
// and none of them closed.
void penTracks(const drawing::Path& outline, double tolerance, std::size_t mostPoints,
               const TrackReceiver& receiver);
// All of them, each subpath in one.
std::vector<PenTrack> penTracks(const drawing::Path& outline, double tolerance);

// The parts of the track that lie under a dash. Dashes are an even number of lengths, none negative; the
// track begins the pattern anew at `offset`. A closed track that begins and ends inside a dash has it in one
// piece.
std::vector<PenTrack> dashed(const PenTrack& track, const std::vector<double>& dashes, double offset);

// How many dashes there would be.
double dashCount(const std::vector<PenTrack>& tracks, const std::vector<double>& dashes);

} // namespace easel::paint
