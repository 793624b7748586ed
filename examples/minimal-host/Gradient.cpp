// host/Gradient.h: the gradient record and the shared gradient.
#include "host/Gradient.h"

#include <bit>

namespace {

/// Takes in numbers one after the other; any that differs changes the hash.
class Hash {
  public:
    void Add(double number) {
        auto const bits = std::bit_cast<std::uint64_t>(number);
        for (int shift = 0; shift < 64; shift += 8) {
            value_ = (value_ ^ (bits >> shift & 0xFF)) * 16777619;
        }
    }
    [[nodiscard]] std::uint32_t Value() const { return static_cast<std::uint32_t>(value_); }

  private:
    std::uint64_t value_ = 2166136261;
};

} // namespace

CGradientColor::CGradientColor(RGBColor const& color, double percent) : color_(color), percent_(percent) {}

RGBColor CGradientColor::ColorRGB() const {
    return color_;
}

// The default record, which a plain click gives to an object as long as the user has not edited another.
CGradientData::CGradientData()
    : fields_{kLinearGradient, 0.0F, 0, {0.5, 0.5}, {0.5, 0.5}, 0.0, 0.0, 0},
      colors_{CGradientColor({0, 0, 0}, 0.0), CGradientColor({65535, 65535, 65535}, 1.0)} {}

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

double CGradientData::EndRadius() const {
    return fields_.endRadius;
}

// Out of line, and with them the virtual tables: gradients on objects outlive the module that made them.
CHashBase::~CHashBase() = default;
CGradient::CGradient(CGradientData const& data) : data_(data) {}
CGradient::~CGradient() = default;

CGradientData const& CGradient::GetGradientData() const {
    return data_;
}

std::uint32_t CGradient::HashID() const {
    Hash hash;
    hash.Add(data_.Type());
    hash.Add(static_cast<double>(data_.Angle()));
    for (TPoint<double> const& point : {data_.Start(), data_.End()}) {
        hash.Add(point.h);
        hash.Add(point.v);
    }
    hash.Add(data_.StartRadius());
    hash.Add(data_.EndRadius());
    for (CGradientColor const& stop : data_.ColorList()) {
        RGBColor const color = stop.ColorRGB();
        for (std::uint16_t const channel : {color.red, color.green, color.blue}) {
            hash.Add(channel);
        }
        hash.Add(stop.Percent());
    }
    return hash.Value();
}

// No gradient can be made bytes here, so the plug-in stores none when it is shut down.
Handle MakeGradientData(CGradientData const& /*data*/) {
    return nullptr;
}
