#include "easel/type/pango/FontAxes.h"

#include <hb.h>

#include FT_MULTIPLE_MASTERS_H

#include <algorithm>
#include <cmath>
#include <utility>

namespace easel::type {

namespace {

constexpr double kOne = 1 << 16; // in the numbers of FreeType
constexpr FT_ULong kWeight = FT_MAKE_TAG('w', 'g', 'h', 't');

} // namespace

FontAxes::FontAxes(FT_Face face) : face_(face) {
    FT_MM_Var* found = nullptr;
    if (!FT_HAS_MULTIPLE_MASTERS(face) || FT_Get_MM_Var(face, &found) != 0)
        return;
    for (FT_UInt i = 0; i < found->num_axis; ++i) {
        const FT_Var_Axis& each = found->axis[i];
        const double least = static_cast<double>(each.minimum) / kOne;
        const Axis axis{each.tag, least, static_cast<double>(each.def) / kOne,
                        std::max(least, static_cast<double>(each.maximum) / kOne)};
        axes_.push_back(axis);
        if (axis.tag == kWeight)
            weights_ = Weights{static_cast<int>(axis.least), static_cast<int>(axis.most)};
    }
    FT_Done_MM_Var(face->glyph->library, found);
}

bool FontAxes::setPlaces(int weight, std::string_view variations) {
    std::vector<FT_Fixed> places;
    const auto place = [](const Axis& axis, double wanted) {
        return static_cast<FT_Fixed>(std::lround(std::clamp(wanted, axis.least, axis.most) * kOne));
    };
    for (const Axis& axis : axes_)
        places.push_back(place(axis, axis.tag == kWeight ? weight : axis.usual));
    while (!variations.empty()) {
        const std::size_t end = std::min(variations.find(','), variations.size());
        hb_variation_t asked{};
        if (hb_variation_from_string(variations.data(), static_cast<int>(end), &asked) != 0)
            for (std::size_t i = 0; i < axes_.size(); ++i)
                if (axes_[i].tag == asked.tag)
                    places[i] = place(axes_[i], static_cast<double>(asked.value));
        variations.remove_prefix(std::min(end + 1, variations.size()));
    }
    if (places == places_)
        return false;
    places_ = std::move(places);
    return FT_Set_Var_Design_Coordinates(face_, static_cast<FT_UInt>(places_.size()), places_.data()) == 0;
}

} // namespace easel::type
