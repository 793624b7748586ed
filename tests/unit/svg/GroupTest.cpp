// What elements do to all they hold at once, as the drawing has it.
#include "tests/unit/svg/ReadHelp.h"

#include <gmock/gmock.h>

namespace {

using namespace easel::drawing;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

const std::string kRect = "<rect width='10' height='10'";

TEST(Groups, HoldMasksAndBlendModesFromAttributesAndStyles) {
    const Drawing drawing = readOk(svgFile("<mask id='m' mask-type='alpha'>" + kRect + "/>" + kRect +
                                           "/></mask>" + kRect + " mask='url(#m)'/>" + kRect +
                                           " style='mask:url(#m);mask:none;mix-blend-mode:Color-Burn'/><g "
                                           "style='isolation:isolate'>" +
                                           kRect + "/></g>"));
    EXPECT_THAT(drawing.notes(), IsEmpty());
    ASSERT_EQ(drawing.size(), 3U);
    const MaskPtr& mask = drawing.object(0)->group->mask;
    EXPECT_EQ(mask->measure, MaskMeasure::Alpha);
    ASSERT_EQ(mask->objects.size(), 2U);
    // They are objects of the mask alone: no element of the drawing is theirs.
    EXPECT_FALSE(mask->objects[0]->source.inFile());
    EXPECT_EQ(drawing.object(1)->group->blend, BlendMode::ColorBurn);
    EXPECT_FALSE(drawing.object(1)->group->mask);
    EXPECT_TRUE(drawing.object(2)->group->isolated);
}

TEST(Groups, ThatNothingIsDoneToAreNone) {
    const Drawing drawing = readOk(
        svgFile("<g mask='none' style='mix-blend-mode:normal;isolation:auto' clip-path='none' opacity='1'>" +
                kRect + " style='mix-blend-mode:unknown'/></g>"));
    EXPECT_FALSE(drawing.object(0)->group);
    EXPECT_FALSE(drawing.blends());
}

TEST(Groups, DrawingsBlendWhereNoGroupAroundIsolates) {
    const std::string blended = kRect + " style='mix-blend-mode:hue'/>";
    EXPECT_TRUE(readOk(svgFile(blended)).blends());
    EXPECT_TRUE(readOk(svgFile("<g style='mix-blend-mode:hue'>" + kRect + "/></g>")).blends());
    EXPECT_FALSE(readOk(svgFile("<g opacity='.5'>" + blended + "</g>")).blends());
    EXPECT_TRUE(readOk(svgFile("<g opacity='.5'>" + blended + "</g>" + blended)).blends());
}

TEST(Groups, NeighborsShareAMaskThatDependsOnItsPlaceAlone) {
    const auto masks = [](const std::string& mask, const std::string& second) {
        const Drawing drawing = readOk(svgFile(mask + kRect + "/></mask>" + kRect + " mask='url(#m)'/>" +
                                               kRect + " mask='url(#m)' " + second + "/>"));
        return std::pair(drawing.object(0)->group->mask, drawing.object(1)->group->mask);
    };
    const std::string inUserSpace = "<mask id='m' maskUnits='userSpaceOnUse'>";
    const auto [one, same] = masks(inUserSpace, "");
    EXPECT_EQ(one, same);
    const auto [here, elsewhere] = masks(inUserSpace, "transform='translate(3)'");
    EXPECT_EQ(elsewhere->objects.at(0)->bounds.left, here->objects.at(0)->bounds.left + 3);
    const auto [wide, narrow] = masks("<mask id='m' maskContentUnits='objectBoundingBox'>", "x='5'");
    EXPECT_NE(wide->objects.at(0)->bounds, narrow->objects.at(0)->bounds);
}

TEST(Groups, MasksThatLeadBackToThemselvesAreNoneThereAndNoted) {
    const Drawing drawing = readOk(svgFile("<mask id='m' maskUnits='userSpaceOnUse' mask='url(#n)'>" + kRect +
                                           "/></mask><mask id='n' maskUnits='userSpaceOnUse'><g id='g' "
                                           "mask='url(#m)'>" +
                                           kRect + "/></g></mask>" + kRect + " mask='url(#m)'/>"));
    EXPECT_THAT(drawing.notes(), ElementsAre(HasSubstr("lead back to themselves")));
    const MaskPtr& mask = drawing.object(0)->group->mask;
    ASSERT_EQ(mask->objects.size(), 1U);
    EXPECT_TRUE(mask->objects[0]->group->parent->mask);
}

TEST(Groups, MasksInMasksWithoutEndAreCutOff) {
    std::string masks;
    for (int i = 0; i < 40; ++i)
        masks += "<mask id='m" + std::to_string(i) + "' maskUnits='userSpaceOnUse'>" + kRect +
                 " mask='url(#m" + std::to_string(i + 1) + ")'/></mask>";
    const Drawing drawing = readOk(svgFile(masks + kRect + " mask='url(#m0)'/>"));
    EXPECT_THAT(drawing.notes(), ElementsAre(HasSubstr("nested very deep")));
}

TEST(Groups, ChangesInsideMasksAndBlendsAreSmall) {
    const std::string text = svgFile("<mask id='m'>" + kRect +
                                     " fill='white'/></mask><g mask='url(#m)' "
                                     "style='mix-blend-mode:screen'>" +
                                     kRect + "/><path id='p' d='M0 0H9V9'/></g>");
    Drawing drawing = readOk(text);
    EXPECT_EQ(easel::svg::toBytes(drawing), text);
    drawing.erase(0);
    const std::string saved = easel::svg::toBytes(drawing);
    EXPECT_EQ(saved.size(), text.size() - (kRect + "/>").size());
    EXPECT_THAT(saved, HasSubstr("mix-blend-mode:screen'><path id='p' d='M0 0H9V9'/></g>"));
}

TEST(FixedStrokes, HaveTheirWidthInTheDrawing) {
    const Drawing drawing =
        readOk(svgFile("<g transform='scale(9 2)'><path d='M1 1H4' stroke='red' stroke-width='6' "
                       "vector-effect='non-scaling-stroke'/></g>"));
    EXPECT_THAT(drawing.notes(), IsEmpty());
    const Object& line = *drawing.object(0);
    // Square corners of a miter may reach four half widths, and no scale makes them more.
    EXPECT_EQ(line.paintBounds(), line.bounds.grownBy(strokeReach(styleOf(line))));
    EXPECT_LE(line.paintBounds().width(), 27 + 2 * 12);
    EXPECT_EQ(styleOf(line).stroke.width, 6);
}

} // namespace
