#include "easel/type/pango/FontAxes.h"

#include FT_MULTIPLE_MASTERS_H

namespace easel::type {

namespace {

constexpr FT_Fixed kOne = 1 << 16;

} // namespace

FontAxes::FontAxes(FT_Face face) : face_(face) {
    FT_MM_Var* axes = nullptr;
    if (!FT_HAS_MULTIPLE_MASTERS(face) || FT_Get_MM_Var(face, &axes) != 0)
        return;
    for (FT_UInt i = 0; i < axes->num_axis; ++i) {
        const FT_Var_Axis& axis = axes->axis[i];
        places_.push_back(axis.def);
        if (axis.tag != FT_MAKE_TAG('w', 'g', 'h', 't') || axis.minimum > axis.maximum)
            continue;
        weightAxis_ = i;
        weights_ = Weights{static_cast<int>(axis.minimum / kOne), static_cast<int>(axis.maximum / kOne)};
    }
    FT_Done_MM_Var(face->glyph->library, axes);
}

bool FontAxes::setWeight(int weight) {
    if (!weights_ || weights_->nearest(weight) == weight_)
        return false;
    weight_ = weights_->nearest(weight);
    places_[weightAxis_] = weight_ * kOne;
    return FT_Set_Var_Design_Coordinates(face_, static_cast<FT_UInt>(places_.size()), places_.data()) == 0;
}

} // namespace easel::type
