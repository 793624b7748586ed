// Gradient records for the tests.
#pragma once

#include "host/Gradient.h"

#include <list>
#include <ostream>
#include <vector>

// A stop in numbers, for comparing and for messages.
struct Stop {
    double percent;
    RGBColor color;

    friend bool operator==(const Stop&, const Stop&) = default;
    friend std::ostream& operator<<(std::ostream& out, const Stop& stop) {
        return out << stop.percent << ":" << stop.color.red << "," << stop.color.green << ","
                   << stop.color.blue;
    }
};

inline constexpr RGBColor kBlack{0, 0, 0};
inline constexpr RGBColor kWhite{65535, 65535, 65535};
inline constexpr RGBColor kRed{65535, 0, 0};
inline constexpr RGBColor kGreen{0, 65535, 0};
inline constexpr RGBColor kBlue{0, 0, 65535};

inline std::list<CGradientColor> ColorsOf(const std::vector<Stop>& stops) {
    std::list<CGradientColor> colors;
    for (const Stop& stop : stops) {
        colors.emplace_back(stop.color, stop.percent);
    }
    return colors;
}

inline std::vector<Stop> StopsOf(const std::list<CGradientColor>& colors) {
    std::vector<Stop> stops;
    for (const CGradientColor& color : colors) {
        stops.push_back({color.Percent(), color.ColorRGB()});
    }
    return stops;
}

inline CGradientData RecordWith(const std::vector<Stop>& stops) {
    CGradientData data;
    data.ColorList() = ColorsOf(stops);
    return data;
}
