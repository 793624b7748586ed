// The gradient record, its color stops, the shared gradient object and the bytes a gradient is stored in.
#pragma once

#include "host/Geometry.h"
#include "host/Memory.h"

#include <cstdint>
#include <list>

#pragma GCC visibility push(default)

/// A color; each channel 0 to 65535.
struct RGBColor {
    std::uint16_t red = 0;
    std::uint16_t green = 0;
    std::uint16_t blue = 0;

    friend bool operator==(RGBColor const&, RGBColor const&) = default;
};

/// The kind of a gradient. Every value other than 1 is drawn and tracked as radial.
enum KGradientType : std::int32_t { kLinearGradient = 1, kRadialGradient = 2 };

/// One color stop of a ramp.
class CGradientColor {
  public:
    /// A stop at a position given as a fraction, 0.0 the ramp's start and 1.0 its end. The position is not
    /// narrowed.
    CGradientColor(RGBColor const& color, double percent);

    [[nodiscard]] RGBColor ColorRGB() const;
    void SetColor(RGBColor const& color);
    /// The position as a fraction.
    [[nodiscard]] double Percent() const { return percent_; }
    /// Sets the position, which thereby passes through single precision.
    void SetPercent(float percent);
    /// Orders stops by position, the smaller one first.
    bool operator<(CGradientColor const& other) const;

  private:
    RGBColor color_;
    double percent_;
};

/// A gradient as it is stored: independent of any shape.
///
/// Linear: the angle is its direction in degrees, counter-clockwise as seen on the screen, so that colors
/// rise along (cos a, -sin a), written (horizontal, vertical) with the vertical axis pointing down: the
/// opposite sign of TLine<double>::Angle(). Start and end are not used. Radial: start and end are the centres
/// of the inner and outer circle as fractions of the shape's bounds, from the top-left corner (0, 0) to the
/// bottom-right (1, 1), and may lie outside; radii are not used. docs/host-interface.md says how such a
/// record is drawn.
///
/// In a record handed to CGContextDrawGradient, start, end and radii are absolute instead, and the angle is
/// not used. The color list is kept in ascending order of position.
class CGradientData {
  public:
    /// The host's default record: linear, angle 0, start and end (0.5, 0.5), radii 0, and at least one stop,
    /// since the plug-in reads the first stop of a default record. Easel's has black at 0 and white at 1.
    CGradientData();
    CGradientData(CGradientData const& other) : fields_(other.fields_), colors_(other.colors_) {}
    CGradientData& operator=(CGradientData const& other) {
        fields_ = other.fields_;
        colors_ = other.colors_;
        return *this;
    }
    ~CGradientData() = default;

    [[nodiscard]] KGradientType Type() const;
    void SetType(KGradientType type);
    [[nodiscard]] float Angle() const;
    void SetAngle(float degrees);
    [[nodiscard]] TPoint<double> Start() const;
    void SetStart(TPoint<double> start);
    [[nodiscard]] TPoint<double> End() const;
    void SetEnd(TPoint<double> end);
    [[nodiscard]] double StartRadius() const;
    void SetStartRadius(float radius);
    [[nodiscard]] double EndRadius() const;
    void SetEndRadius(float radius);
    [[nodiscard]] std::list<CGradientColor> const& ColorList() const { return colors_; }
    [[nodiscard]] std::list<CGradientColor>& ColorList() { return colors_; }

  private:
    // Three scalars, two points, two radii and a half word, in the host's order; the unnamed ones are the
    // host's own.
    struct Fields {
        KGradientType type;
        float angle;
        std::int32_t hostWord;
        TPoint<double> start;
        TPoint<double> end;
        double startRadius;
        double endRadius;
        std::int16_t hostHalfWord;
    };

    Fields fields_;
    std::list<CGradientColor> colors_;
};

/// Base of the resources that are shared by hash. Its virtual table lives in the host, so that a resource
/// made by a plug-in can outlive the plug-in.
class CHashBase {
  public:
    CHashBase() = default;
    CHashBase(CHashBase const&) = delete;
    CHashBase& operator=(CHashBase const&) = delete;
    virtual ~CHashBase();

    /// The key under which equal resources are shared. Resources with equal keys are merged, so the key must
    /// depend on every field of the resource.
    [[nodiscard]] virtual std::uint32_t HashID() const = 0;
};

/// A gradient that cannot be changed and that drawing objects share. Always made with `new` and handed at
/// once to a SharedResourcePtr<CGradient>. Its destructor is the host's, for the reason given at CHashBase.
class CGradient final : public CHashBase {
  public:
    explicit CGradient(CGradientData const& data);
    ~CGradient() override;

    /// A hash over type, angle, start, end, both radii and the color and position of every stop in order.
    [[nodiscard]] std::uint32_t HashID() const override;
    [[nodiscard]] CGradientData const& GetGradientData() const;

  private:
    CGradientData const data_;
};

/// Number of object kinds that can carry a gradient, and their ids: kinds as TessObject::WhatObject gives
/// them, here in 32 bits.
extern std::int32_t const kNumGradObjIDs;
extern std::int32_t const kGradObjIDs[];

/// True if objects of that kind can carry a gradient, which are those in kGradObjIDs; false for 0, the kind
/// of an empty object. A kind is widened without a sign.
[[nodiscard]] bool IsGradientCapable(long kind);

/// The gradient as self-contained bytes, in a new block that the caller owns; null if it cannot be made.
[[nodiscard]] Handle MakeGradientData(CGradientData const& data);
/// Reads what MakeGradientData wrote: type, angle, start, end, radii and every stop come back as they were.
/// False if the bytes are not such a gradient; `out` may then be partly changed.
bool ExtractGradientInfo(char* bytes, long size, CGradientData& out);

#pragma GCC visibility pop
