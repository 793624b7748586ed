// The attributes of filter effects as values, with what the standard says for those that are left out or
// mistaken.
#include "easel/drawing/Filter.h"
#include "tests/unit/svg/ReadHelp.h"

#include <gmock/gmock.h>

namespace {

using namespace easel::drawing;
using testing::ElementsAre;

// The last step of a filter on a rectangle of 40 by 20 in its own units.
FilterStep stepOf(const std::string& step) {
    const Drawing drawing = readOk(svgFile(
        "<filter id='f'>" + step + "</filter><rect x='10' y='20' width='40' height='20' filter='url(#f)'/>"));
    return drawing.object(0)->group->filter->steps.back();
}

template <class Effect> Effect effectOf(const std::string& step) {
    const FilterStep made = stepOf(step);
    EXPECT_TRUE(std::holds_alternative<Effect>(made.effect)) << step;
    return std::get<Effect>(made.effect);
}

bool changesNothing(const std::string& step) {
    const auto matrix = effectOf<ColorMatrixEffect>(step).matrix;
    return matrix == std::array<double, 20>{1, 0, 0, 0, 0, 0, 1, 0, 0, 0, 0, 0, 1, 0, 0, 0, 0, 0, 1, 0};
}

TEST(FilterEffects, AShadowIsTwoUnitsWideAndAwayUnlessItSaysOtherwise) {
    const auto usual = effectOf<DropShadowEffect>("<feDropShadow/>");
    EXPECT_EQ(usual.deviation, (Point{2, 2}));
    EXPECT_EQ(usual.by, (Point{2, 2}));
    EXPECT_EQ(usual.color.opacity, 1);
    const auto stated = effectOf<DropShadowEffect>(
        "<feDropShadow stdDeviation='1 3' dx='-4' dy='5' flood-color='red' flood-opacity='50%'/>");
    EXPECT_EQ(stated.deviation, (Point{1, 3}));
    EXPECT_EQ(stated.by, (Point{-4, 5}));
    EXPECT_EQ(stated.color.color, (Rgb16{65535, 0, 0}));
    EXPECT_EQ(stated.color.opacity, 0.5);
    EXPECT_EQ(effectOf<DropShadowEffect>("<feDropShadow stdDeviation='-1'/>").deviation, (Point{0, 0}));
}

TEST(FilterEffects, PicturesAreCombinedAsTheOperatorSays) {
    using Operator = CompositeEffect::Operator;
    const std::pair<const char*, Operator> operators[] = {{"over", Operator::Over},
                                                          {"in", Operator::In},
                                                          {"out", Operator::Out},
                                                          {"atop", Operator::Atop},
                                                          {"xor", Operator::Xor},
                                                          {"lighter", Operator::Lighter},
                                                          {"arithmetic", Operator::Arithmetic},
                                                          {"under", Operator::Over}};
    for (const auto& [word, how] : operators)
        EXPECT_EQ(effectOf<CompositeEffect>(std::string("<feComposite operator='") + word + "'/>").how, how)
            << word;
    EXPECT_THAT(effectOf<CompositeEffect>("<feComposite k1='1' k2='.5' k4='-2'/>").k,
                ElementsAre(1, 0.5, 0, -2));
    EXPECT_EQ(effectOf<BlendEffect>("<feBlend mode='multiply'/>").mode, BlendMode::Multiply);
    EXPECT_EQ(effectOf<BlendEffect>("<feBlend mode='unheard-of'/>").mode, BlendMode::Normal);
}

TEST(FilterEffects, MatricesAreStatedOrComeOfOneNumber) {
    const auto stated = effectOf<ColorMatrixEffect>(
                            "<feColorMatrix values='1 2 3 4 5 6 7 8 9 10 11 12 13 14 15 16 17 18 19 20'/>")
                            .matrix;
    for (std::size_t i = 0; i < stated.size(); ++i)
        EXPECT_EQ(stated[i], static_cast<double>(i + 1));
    for (const char* same :
         {"<feColorMatrix/>", "<feColorMatrix values='1 2 3'/>", "<feColorMatrix type='saturate'/>",
          "<feColorMatrix type='saturate' values='1'/>"})
        EXPECT_TRUE(changesNothing(same)) << same;
    // SVG 1.1, 15.10: at 0 all that is left is the luminance, and at 180 degrees the cosine is -1.
    const auto gray = effectOf<ColorMatrixEffect>("<feColorMatrix type='saturate' values='0'/>").matrix;
    const auto turned = effectOf<ColorMatrixEffect>("<feColorMatrix type='hueRotate' values='180'/>").matrix;
    for (std::size_t row = 0; row < 3; ++row)
        EXPECT_NEAR(gray[5 * row + 1], 0.715, 1e-12);
    EXPECT_NEAR(turned[0], 0.213 - 0.787, 1e-9);
    EXPECT_NEAR(turned[1], 0.715 + 0.715, 1e-9);
    EXPECT_NEAR(effectOf<ColorMatrixEffect>("<feColorMatrix type='hueRotate'/>").matrix[0], 1, 1e-12);
    const auto alpha = effectOf<ColorMatrixEffect>("<feColorMatrix type='luminanceToAlpha'/>").matrix;
    EXPECT_THAT(std::vector<double>(alpha.begin() + 15, alpha.end()),
                ElementsAre(0.2125, 0.7154, 0.0721, 0, 0));
    EXPECT_EQ(alpha[0], 0);
}

TEST(FilterEffects, ChannelsHaveTransferFunctionsOfTheirOwn) {
    using Kind = TransferFunction::Kind;
    const auto functions =
        effectOf<TransferEffect>(
            "<feComponentTransfer><feFuncR type='table' tableValues='0 .5 1'/><feFuncG type='linear' "
            "slope='2' intercept='.1'/>"
            "<feFuncB type='gamma' amplitude='3' exponent='4' offset='.2'/></feComponentTransfer>")
            .functions;
    EXPECT_EQ(functions[0].kind, Kind::Table);
    EXPECT_THAT(functions[0].table, ElementsAre(0, 0.5, 1));
    EXPECT_EQ(functions[1].kind, Kind::Linear);
    EXPECT_EQ(functions[1].slope, 2);
    EXPECT_EQ(functions[1].offset, 0.1);
    EXPECT_EQ(functions[2].kind, Kind::Gamma);
    EXPECT_EQ(functions[2].amplitude, 3);
    EXPECT_EQ(functions[2].exponent, 4);
    EXPECT_EQ(functions[2].offset, 0.2);
    EXPECT_EQ(functions[3].kind, Kind::Identity);
    EXPECT_EQ(effectOf<TransferEffect>(
                  "<feComponentTransfer><feFuncA type='discrete' tableValues='1'/></feComponentTransfer>")
                  .functions[3]
                  .kind,
              Kind::Discrete);
    EXPECT_EQ(effectOf<TransferEffect>("<feComponentTransfer><feFuncA type='other'/></feComponentTransfer>")
                  .functions[3]
                  .kind,
              Kind::Identity);
}

TEST(FilterEffects, BlursEndAtTheEdgesUnlessStatedOtherwise) {
    const auto edge = [](const std::string& stated) {
        return effectOf<BlurEffect>("<feGaussianBlur " + stated + "/>").edge;
    };
    EXPECT_EQ(edge(""), EdgeMode::None);
    EXPECT_EQ(edge("edgeMode='duplicate'"), EdgeMode::Duplicate);
    EXPECT_EQ(edge("edgeMode='wrap'"), EdgeMode::Wrap);
    EXPECT_EQ(edge("edgeMode='none'"), EdgeMode::None);
    EXPECT_EQ(edge("edgeMode='mirror'"), EdgeMode::None);
}

TEST(FilterEffects, KernelsHaveATargetADivisorAndEdges) {
    const auto plain = effectOf<ConvolveEffect>("<feConvolveMatrix kernelMatrix='0 0 0 0 0 0 0 0 0'/>");
    EXPECT_EQ(plain.columns, 3);
    EXPECT_EQ(plain.targetX, 1);
    EXPECT_EQ(plain.divisor, 1) << "the sum is 0";
    EXPECT_EQ(plain.edge, EdgeMode::Duplicate);
    EXPECT_FALSE(plain.keepsAlpha);
    const auto stated = effectOf<ConvolveEffect>(
        "<feConvolveMatrix order='2' kernelMatrix='1 2 3 4' divisor='5' bias='.5' targetX='0' "
        "targetY='1' edgeMode='wrap' preserveAlpha='true' kernelUnitLength='2 3'/>");
    EXPECT_EQ(stated.divisor, 5);
    EXPECT_EQ(stated.bias, 0.5);
    EXPECT_EQ(stated.targetX, 0);
    EXPECT_EQ(stated.targetY, 1);
    EXPECT_EQ(stated.edge, EdgeMode::Wrap);
    EXPECT_TRUE(stated.keepsAlpha);
    EXPECT_EQ(stated.unit, (Point{2, 3}));
    EXPECT_EQ(
        effectOf<ConvolveEffect>("<feConvolveMatrix order='1' kernelMatrix='3' edgeMode='none' divisor='0'/>")
            .edge,
        EdgeMode::None);
    EXPECT_EQ(effectOf<ConvolveEffect>("<feConvolveMatrix order='1' kernelMatrix='3' divisor='0'/>").divisor,
              3);
    for (const char* wrong : {"order='1.5'", "order='1 1.5'", "order='-1'", "order='1 0'", "order='257 1'",
                              "order='16 17'", "order='2' targetX='2'", "order='2' targetX='-1'",
                              "order='2' targetY='2'", "order='2' targetY='-1'"})
        EXPECT_TRUE(changesNothing(std::string("<feConvolveMatrix kernelMatrix='1 2 3 4' ") + wrong + "/>"))
            << wrong;
}

TEST(FilterEffects, DisplacementTakesItsChannelsFromTheirLetters) {
    using Channel = DisplacementEffect::Channel;
    const auto stated = effectOf<DisplacementEffect>(
        "<feDisplacementMap scale='7' xChannelSelector='R' yChannelSelector='B'/>");
    EXPECT_NEAR(stated.scale, 7, 1e-9);
    EXPECT_EQ(stated.x, Channel::Red);
    EXPECT_EQ(stated.y, Channel::Blue);
    const auto usual =
        effectOf<DisplacementEffect>("<feDisplacementMap xChannelSelector='G' yChannelSelector='x'/>");
    EXPECT_EQ(usual.scale, 0);
    EXPECT_EQ(usual.x, Channel::Green);
    EXPECT_EQ(usual.y, Channel::Alpha);
}

TEST(FilterEffects, TurbulenceHasFrequenciesAndOctaves) {
    const auto stated = effectOf<TurbulenceEffect>("<feTurbulence type='fractalNoise' baseFrequency='.1 .2' "
                                                   "numOctaves='3' seed='4' stitchTiles='stitch'/>");
    EXPECT_EQ(stated.kind, TurbulenceEffect::Kind::Noise);
    EXPECT_EQ(stated.frequency, (Point{0.1, 0.2}));
    EXPECT_EQ(stated.octaves, 3);
    EXPECT_EQ(stated.seed, 4);
    EXPECT_TRUE(stated.stitches);
    const auto usual = effectOf<TurbulenceEffect>("<feTurbulence numOctaves='-1'/>");
    EXPECT_EQ(usual.kind, TurbulenceEffect::Kind::Turbulence);
    EXPECT_EQ(usual.octaves, 0);
    EXPECT_FALSE(usual.stitches);
    for (const char* none : {"-1", ".1 -1"})
        EXPECT_EQ(effectOf<FloodEffect>(std::string("<feTurbulence baseFrequency='") + none + "'/>").opacity,
                  0)
            << none;
}

TEST(FilterEffects, MorphologyErodesUnlessItDilates) {
    using Operator = MorphologyEffect::Operator;
    EXPECT_EQ(effectOf<MorphologyEffect>("<feMorphology operator='dilate' radius='2 3'/>").how,
              Operator::Dilate);
    EXPECT_EQ(effectOf<MorphologyEffect>("<feMorphology operator='dilate' radius='2 3'/>").radius,
              (Point{2, 3}));
    EXPECT_EQ(effectOf<MorphologyEffect>("<feMorphology radius='-2'/>").how, Operator::Erode);
    EXPECT_EQ(effectOf<MorphologyEffect>("<feMorphology radius='2 -2'/>").radius, (Point{0, 0}));
}

TEST(FilterEffects, LightsComeFromAfarFromAPointOrFromASpot) {
    const auto distant = effectOf<LightingEffect>(
        "<feDiffuseLighting surfaceScale='2' diffuseConstant='3' lighting-color='lime' kernelUnitLength='4'>"
        "<feDistantLight azimuth='45' elevation='60'/></feDiffuseLighting>");
    EXPECT_EQ(distant.kind, LightingEffect::Kind::Diffuse);
    EXPECT_EQ(distant.surfaceScale, 2);
    EXPECT_EQ(distant.constant, 3);
    EXPECT_EQ(distant.color, (Rgb16{0, 65535, 0}));
    EXPECT_EQ(distant.unit, (Point{4, 4}));
    EXPECT_EQ(std::get<DistantLight>(distant.light).azimuth, 45);
    EXPECT_EQ(std::get<DistantLight>(distant.light).elevation, 60);
    const auto spot = effectOf<LightingEffect>(
        "<feSpecularLighting specularConstant='-1' specularExponent='2000'><feSpotLight x='1' y='2' z='3' "
        "pointsAtX='4' pointsAtY='5' pointsAtZ='6' specularExponent='7' "
        "limitingConeAngle='8'/></feSpecularLighting>");
    EXPECT_EQ(spot.kind, LightingEffect::Kind::Specular);
    EXPECT_EQ(spot.constant, 0) << "not below 0";
    EXPECT_EQ(spot.exponent, 1000);
    const auto& light = std::get<SpotLight>(spot.light);
    EXPECT_NEAR(light.place.z, 3, 1e-9);
    EXPECT_EQ(light.target.y, 5);
    EXPECT_EQ(light.focus, 7);
    EXPECT_EQ(light.cone, 8);
    EXPECT_EQ(effectOf<FloodEffect>("<feDiffuseLighting/>").opacity, 0) << "no light, no picture";
}

TEST(FilterEffects, OthersAreReadWithoutAttributes) {
    effectOf<TileEffect>("<feTile/>");
    effectOf<OffsetEffect>("<feOffset/>");
    const FilterStep merge = stepOf("<feFlood result='a'/><feMerge><feMergeNode in='a'/><feMergeNode "
                                    "in='SourceGraphic'/><feMergeNode in='SourceAlpha'/></feMerge>");
    ASSERT_EQ(merge.inputs.size(), 3U);
    EXPECT_EQ(merge.inputs[0].kind, FilterInput::Kind::Step);
    EXPECT_EQ(merge.inputs[1].kind, FilterInput::Kind::Source);
    EXPECT_EQ(merge.inputs[2].kind, FilterInput::Kind::SourceAlpha);
}

} // namespace
