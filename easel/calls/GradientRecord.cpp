// The gradient record, the shared gradient and the kinds of objects that carry one.
#include "easel/drawing/Object.h"
#include "easel/runtime/Journal.h"
#include "host/Gradient.h"

#include <algorithm>
#include <bit>
#include <iterator>

using easel::drawing::Kind;

namespace {

constexpr RGBColor kBlack{0, 0, 0};
constexpr RGBColor kWhite{65535, 65535, 65535};

// The 32-bit FNV-1a hash, fed with whole numbers, lowest byte first.
class FieldHash {
  public:
    void add(std::uint64_t value, int bytes) {
        for (; bytes > 0; --bytes, value >>= 8)
            hash_ = (hash_ ^ static_cast<std::uint8_t>(value)) * 16777619u;
    }
    void add(double value) { add(std::bit_cast<std::uint64_t>(value), 8); }
    void add(float value) { add(std::bit_cast<std::uint32_t>(value), 4); }
    void add(TPoint<double> const& point) {
        add(point.v);
        add(point.h);
    }
    void add(RGBColor const& color) {
        add(color.red, 2);
        add(color.green, 2);
        add(color.blue, 2);
    }
    std::uint32_t value() const { return hash_; }

  private:
    std::uint32_t hash_ = 2166136261u;
};

} // namespace

CGradientColor::CGradientColor(RGBColor const& color, double percent) : color_(color), percent_(percent) {}
RGBColor CGradientColor::ColorRGB() const {
    return color_;
}
void CGradientColor::SetColor(RGBColor const& color) {
    color_ = color;
}
void CGradientColor::SetPercent(float percent) {
    percent_ = static_cast<double>(percent);
}
bool CGradientColor::operator<(CGradientColor const& other) const {
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
    fields_.angle = degrees;
}
TPoint<double> CGradientData::Start() const {
    return fields_.start;
}
void CGradientData::SetStart(TPoint<double> start) {
    fields_.start = start;
}
TPoint<double> CGradientData::End() const {
    return fields_.end;
}
void CGradientData::SetEnd(TPoint<double> end) {
    fields_.end = end;
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

CGradient::CGradient(CGradientData const& data) : data_(data) {}
CGradient::~CGradient() = default;
CGradientData const& CGradient::GetGradientData() const {
    return data_;
}

std::uint32_t CGradient::HashID() const {
    FieldHash hash;
    hash.add(static_cast<std::uint64_t>(data_.Type()), 4);
    hash.add(data_.Angle());
    hash.add(data_.Start());
    hash.add(data_.End());
    hash.add(data_.StartRadius());
    hash.add(data_.EndRadius());
    for (CGradientColor const& stop : data_.ColorList()) {
        hash.add(stop.ColorRGB());
        hash.add(stop.Percent());
    }
    return hash.value();
}

std::int32_t const kGradObjIDs[] = {
    static_cast<std::int32_t>(Kind::Rect), static_cast<std::int32_t>(Kind::Ellipse),
    static_cast<std::int32_t>(Kind::Polygon), static_cast<std::int32_t>(Kind::Path)};
std::int32_t const kNumGradObjIDs = static_cast<std::int32_t>(std::size(kGradObjIDs));

bool IsGradientCapable(long kind) {
    easel::runtime::journal("IsGradientCapable", kind);
    return std::find(std::begin(kGradObjIDs), std::end(kGradObjIDs), kind) != std::end(kGradObjIDs);
}
