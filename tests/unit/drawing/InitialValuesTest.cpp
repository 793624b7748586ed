// What holds where a file says nothing: the initial values of SVG.
#include "easel/drawing/Filter.h"
#include "easel/drawing/Object.h"
#include "easel/drawing/Pattern.h"
#include "easel/drawing/Snapshot.h"
#include "easel/drawing/VisibleRange.h"

#include <gtest/gtest.h>

#include <array>

namespace {

using namespace easel::drawing;

TEST(InitialValues, OfAStrokeAreAUnitWideSolidAndMitered) {
    const Stroke stroke;
    EXPECT_EQ(stroke.paint, Paint(NoPaint()));
    EXPECT_EQ(stroke.opacity, 1);
    EXPECT_EQ(stroke.width, 1);
    EXPECT_EQ(stroke.join, LineJoin::Miter);
    EXPECT_EQ(stroke.cap, LineCap::Butt);
    EXPECT_EQ(stroke.miterLimit, 4);
    EXPECT_TRUE(stroke.dashes.empty());
    EXPECT_EQ(stroke.dashOffset, 0);
    EXPECT_FALSE(stroke.inDrawingUnits);
}

TEST(InitialValues, OfAStyleAreOpaqueWithTheStrokeOverTheFill) {
    const Style style;
    EXPECT_EQ(style.fillOpacity, 1);
    EXPECT_EQ(style.opacity, 1);
    EXPECT_EQ(style.first, PaintStep::Fill);
    EXPECT_FALSE(style.text);
}

TEST(InitialValues, OfAnObjectAreThoseOfNone) {
    const Object object;
    EXPECT_EQ(object.fillRule, FillRule::NonZero);
    EXPECT_EQ(object.source, (ElementSpan{0, 0, 0}));
    EXPECT_TRUE(object.outline.empty());
    EXPECT_TRUE(object.bounds.empty());
    EXPECT_EQ(object.fill, Paint(NoPaint()));
}

TEST(InitialValues, OfColorsAndStopsAreOpaqueBlack) {
    EXPECT_EQ(Rgb16(), (Rgb16{0, 0, 0}));
    EXPECT_EQ(ColorPaint(), (ColorPaint{{0, 0, 0}, 1}));
    EXPECT_EQ(RampStop(), (RampStop{0, {0, 0, 0}, 1}));
    EXPECT_EQ(OpacityStop(), (OpacityStop{0, 1}));
    EXPECT_EQ(RampColor().red + RampColor().green + RampColor().blue, 0);
    EXPECT_EQ(RampColor().opacity, 1);
}

TEST(InitialValues, OfGeometryAreZeroAndTheIdentity) {
    EXPECT_EQ(Point(), (Point{0, 0}));
    EXPECT_EQ(Affine(), (Affine{1, 0, 0, 1, 0, 0}));
    EXPECT_EQ(RadialGeometry(), (RadialGeometry{{0, 0}, 0, {0, 0}, 0}));
    EXPECT_EQ(Gradient().spread, Spread::Pad);
    EXPECT_EQ(ParameterRange().low, 0);
    EXPECT_EQ(ParameterRange().high, 1);
    EXPECT_FALSE(Contour().closed);
    EXPECT_EQ(Snapshot().width, 0);
    EXPECT_EQ(Snapshot().height, 0);
    EXPECT_FALSE(Pattern().showsOverflow);
}

TEST(InitialValues, OfAGroupAreThoseOfNoLayer) {
    const Group group;
    EXPECT_EQ(group.opacity, 1);
    EXPECT_EQ(group.depth, 1U) << "itself";
    EXPECT_EQ(group.blend, BlendMode::Normal);
    EXPECT_FALSE(group.isolated);
    EXPECT_EQ(ClipShape().rule, FillRule::NonZero);
    EXPECT_EQ(Mask().measure, MaskMeasure::Luminance);
}

TEST(InitialValues, OfEffectsOnOnePictureAreThoseOfTheirElements) {
    EXPECT_EQ(FloodEffect().color, Rgb16());
    EXPECT_EQ(FloodEffect().opacity, 1);
    EXPECT_EQ(BlurEffect().deviation, Point());
    EXPECT_EQ(OffsetEffect().by, Point());
    EXPECT_EQ(MorphologyEffect().how, MorphologyEffect::Operator::Erode);
    EXPECT_EQ(MorphologyEffect().radius, Point());
    const TransferFunction transfer;
    EXPECT_EQ(transfer.kind, TransferFunction::Kind::Identity);
    EXPECT_EQ(transfer.slope, 1);
    EXPECT_EQ(transfer.amplitude, 1);
    EXPECT_EQ(transfer.exponent, 1);
    EXPECT_EQ(transfer.offset, 0);
    EXPECT_EQ(TransferEffect().functions.size(), 4U);
    EXPECT_EQ(ColorMatrixEffect().matrix.size(), 20U) << "four rows of five";
}

TEST(InitialValues, OfEffectsOnTwoPicturesAreThoseOfTheirElements) {
    EXPECT_EQ(BlendEffect().mode, BlendMode::Normal);
    EXPECT_EQ(CompositeEffect().how, CompositeEffect::Operator::Over);
    EXPECT_EQ(CompositeEffect().k, (std::array<double, 4>{0, 0, 0, 0}));
    EXPECT_EQ(DisplacementEffect().scale, 0);
    EXPECT_EQ(DisplacementEffect().x, DisplacementEffect::Channel::Alpha);
    EXPECT_EQ(DisplacementEffect().y, DisplacementEffect::Channel::Alpha);
}

TEST(InitialValues, OfAConvolutionAreThreeByThreeAroundTheMiddle) {
    const ConvolveEffect convolve;
    EXPECT_EQ(convolve.columns, 3);
    EXPECT_EQ(convolve.rows, 3);
    EXPECT_EQ(convolve.divisor, 1);
    EXPECT_EQ(convolve.bias, 0);
    EXPECT_EQ(convolve.targetX, 1);
    EXPECT_EQ(convolve.targetY, 1);
    EXPECT_EQ(convolve.edge, EdgeMode::Duplicate);
    EXPECT_EQ(BlurEffect().edge, EdgeMode::None);
    EXPECT_FALSE(convolve.keepsAlpha);
}

TEST(InitialValues, OfLightAreWhiteAndAsStrongAsItIs) {
    const LightingEffect lighting;
    EXPECT_EQ(lighting.surfaceScale, 1);
    EXPECT_EQ(lighting.constant, 1);
    EXPECT_EQ(lighting.exponent, 1);
    EXPECT_EQ(lighting.color, (Rgb16{65535, 65535, 65535}));
    EXPECT_EQ(DistantLight().azimuth, 0);
    EXPECT_EQ(DistantLight().elevation, 0);
    const SpotLight spot;
    EXPECT_EQ(spot.place.x + spot.place.y + spot.place.z, 0);
    EXPECT_EQ(spot.focus, 1);
    EXPECT_EQ(spot.cone, 180) << "no edge on the side that it shines to";
}

TEST(InitialValues, OfTurbulenceAreOneOctaveOfNoFrequency) {
    const TurbulenceEffect turbulence;
    EXPECT_EQ(turbulence.kind, TurbulenceEffect::Kind::Turbulence);
    EXPECT_EQ(turbulence.frequency, Point());
    EXPECT_EQ(turbulence.octaves, 1);
    EXPECT_EQ(turbulence.seed, 0);
    EXPECT_FALSE(turbulence.stitches);
}

TEST(InitialValues, OfAFilterStepAreTheGroupInLinearLight) {
    EXPECT_EQ(FilterInput().kind, FilterInput::Kind::Source);
    EXPECT_EQ(FilterInput().step, 0U);
    EXPECT_TRUE(FilterStep().linearLight);
    EXPECT_TRUE(FilterStep().region.empty());
}

} // namespace
