// Implements host/Gradient.h.
#include "host/Gradient.h"

#include "easel/classic/GradientBytes.h"
#include "easel/drawing/Object.h"
#include "easel/runtime/FieldHash.h"
#include "easel/runtime/Process.h"

#include <algorithm>
#include <iterator>

using easel::drawing::Kind;
using easel::runtime::DialogDrag;
using easel::runtime::dialogDrag;
using easel::runtime::journal;
using easel::runtime::process;

namespace {

constexpr RGBColor kBlack{0, 0, 0};
constexpr RGBColor kWhite{65535, 65535, 65535};

} // namespace

CGradientColor::CGradientColor(const RGBColor& color, double percent) : color_(color), percent_(percent) {
    if (DialogDrag* const drag = dialogDrag())
        drag->stopMade();
}
RGBColor CGradientColor::ColorRGB() const {
    return color_;
}
void CGradientColor::SetColor(const RGBColor& color) {
    color_ = color;
}
void CGradientColor::SetPercent(float percent) {
    const double wanted = static_cast<double>(percent);
    DialogDrag* const drag = dialogDrag();
    percent_ = drag ? drag->positionFor(percent_, wanted) : wanted;
}
bool CGradientColor::operator<(const CGradientColor& other) const {
    return percent_ < other.percent_;
}

CGradientData::CGradientData()
    : fields_{kLinearGradient, 0.0F, 0, {0.5, 0.5}, {0.5, 0.5}, 0.0, 0.0, 0},
      colors_{CGradientColor(kBlack, 0.0), CGradientColor(kWhite, 1.0)} {}

KGradientType CGradientData::Type() const {
    return fields_.type;
}
void CGradientData::SetType(KGradientType type) {
    fields_.type = type;
}
float CGradientData::Angle() const {
    return fields_.angle;
}
void CGradientData::SetAngle(float degrees) {
    const DialogDrag* const drag = dialogDrag();
    fields_.angle = drag ? drag->angleFor(fields_.angle, degrees) : degrees;
}
TPoint<double> CGradientData::Start() const {
    return fields_.start;
}
void CGradientData::SetStart(TPoint<double> start) {
    DialogDrag* const drag = dialogDrag();
    fields_.start = drag ? drag->startFor(fields_.start, start) : start;
}
TPoint<double> CGradientData::End() const {
    return fields_.end;
}
void CGradientData::SetEnd(TPoint<double> end) {
    DialogDrag* const drag = dialogDrag();
    fields_.end = drag ? drag->endFor(fields_.end, end) : end;
}
double CGradientData::StartRadius() const {
    return fields_.startRadius;
}
void CGradientData::SetStartRadius(float radius) {
    fields_.startRadius = static_cast<double>(radius);
}
double CGradientData::EndRadius() const {
    return fields_.endRadius;
}
void CGradientData::SetEndRadius(float radius) {
    fields_.endRadius = static_cast<double>(radius);
}

CHashBase::~CHashBase() = default;

CGradient::CGradient(const CGradientData& data) : data_(data) {}
CGradient::~CGradient() = default;
const CGradientData& CGradient::GetGradientData() const {
    return data_;
}

std::uint32_t CGradient::HashID() const {
    return easel::runtime::hashOf(data_);
}

std::int32_t const kGradObjIDs[] = {
    static_cast<std::int32_t>(Kind::Rect), static_cast<std::int32_t>(Kind::Ellipse),
    static_cast<std::int32_t>(Kind::Polygon), static_cast<std::int32_t>(Kind::Path)};
std::int32_t const kNumGradObjIDs = static_cast<std::int32_t>(std::size(kGradObjIDs));

bool IsGradientCapable(long kind) {
    journal("IsGradientCapable", kind);
    return std::find(std::begin(kGradObjIDs), std::end(kGradObjIDs), kind) != std::end(kGradObjIDs);
}

Handle MakeGradientData(const CGradientData& data) {
    journal("MakeGradientData");
    const auto bytes = easel::classic::gradientToBytes(data);
    if (!bytes)
        return nullptr;
    const Handle block = process().blocks().create(bytes->size());
    if (block)
        std::copy(bytes->begin(), bytes->end(), *block);
    return block;
}

bool ExtractGradientInfo(char* bytes, long size, CGradientData& out) {
    journal("ExtractGradientInfo", size);
    if (!bytes || size < 0)
        return false;
    const auto gradient = easel::classic::gradientFromBytes(
        {reinterpret_cast<const std::uint8_t*>(bytes), static_cast<std::size_t>(size)});
    if (gradient)
        out = *gradient;
    return gradient.has_value();
}
