// Clip paths: which shapes they are made of, what narrows them, and references that lead to none.
#include "tests/unit/svg/ReadHelp.h"

#include <gmock/gmock.h>

namespace {

using namespace easel::drawing;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

const std::string kClipped = "<rect width='90' height='90' clip-path='url(#c)'/>";

// The clip of the first object; null if nothing clips it.
std::shared_ptr<const ClipPath> clipOf(const Drawing& drawing) {
    if (drawing.size() == 0) {
        ADD_FAILURE() << "no object";
        return nullptr;
    }
    const GroupPtr group = drawing.object(0)->group;
    return group ? group->clip : nullptr;
}

// The clip path `c` with this content.
std::string clipPath(const std::string& content) {
    return "<clipPath id='c'>" + content + "</clipPath>";
}

// Left edges of the shapes that are left of these.
std::vector<double> leftEdgesOf(const std::string& content) {
    const Drawing drawing = readOk(svgFile(clipPath(content) + kClipped));
    const auto clip = clipOf(drawing);
    EXPECT_TRUE(clip);
    std::vector<double> edges;
    if (clip)
        for (const ClipShape& shape : clip->shapes)
            edges.push_back(shape.outline.bounds().left);
    return edges;
}

TEST(ClipPaths, AreTheUnionOfTheShapesThatShow) {
    EXPECT_THAT(leftEdgesOf("<rect x='1' width='9' height='9'/><circle cx='25' cy='5' r='5'/>"),
                ElementsAre(1, 20));
    EXPECT_THAT(leftEdgesOf("<rect x='1' width='9' height='9' display='none'/>"
                            "<rect x='2' width='9' height='9' visibility='hidden'/>"
                            "<rect x='3' width='0' height='9'/>"
                            "<g><rect x='4' width='9' height='9'/></g>"
                            "<rect x='5' width='9' height='9'/>"),
                ElementsAre(5))
        << "groups are no part of clip paths";
}

TEST(ClipPaths, RepeatShapesButNotGroups) {
    const std::string shapes = "<defs><rect id='r' x='3' width='9' height='9'/><g id='g'/></defs>";
    const auto edges = [&](const std::string& uses) {
        const Drawing drawing = readOk(svgFile(shapes + clipPath(uses) + kClipped));
        const auto clip = clipOf(drawing);
        return clip ? clip->shapes.size() : 99;
    };
    EXPECT_EQ(edges("<use href='#r'/>"), 1U);
    EXPECT_EQ(edges("<use href='#r' display='none'/>"), 0U);
    EXPECT_EQ(edges("<use href='#r' visibility='hidden'/>"), 0U);
    EXPECT_EQ(edges("<use href='#g'/>"), 0U);
    EXPECT_EQ(edges("<use href='#nothing'/>"), 0U);
    EXPECT_EQ(edges("<use/>"), 0U);
    const Drawing moved =
        readOk(svgFile(shapes + clipPath("<use href='#r' x='4' y='5' transform='scale(2)'/>") + kClipped));
    const Box box = clipOf(moved)->shapes.at(0).outline.bounds();
    EXPECT_EQ(box.left, 14);
    EXPECT_EQ(box.top, 10);
    EXPECT_EQ(box.right, 32);
}

TEST(ClipPaths, AreNarrowedByTheClipsOfTheirShapesAndTheirOwn) {
    const std::string inner = "<clipPath id='i'><rect width='5' height='5'/></clipPath>"
                              "<clipPath id='j'><rect width='7' height='7'/></clipPath>"
                              "<defs><rect id='r' width='9' height='9' clip-path='url(#i)'/></defs>";
    const auto first = [&](const std::string& content) {
        return clipOf(readOk(svgFile(inner + clipPath(content) + kClipped)))->shapes.at(0);
    };
    EXPECT_FALSE(first("<rect width='9' height='9'/>").clip);
    const ClipShape one = first("<rect width='9' height='9' clip-path='url(#i)'/>");
    ASSERT_TRUE(one.clip);
    EXPECT_EQ(one.clip->shapes.at(0).outline.bounds().right, 5);
    const ClipShape ofUse = first("<use href='#r'/>");
    ASSERT_TRUE(ofUse.clip);
    EXPECT_EQ(ofUse.clip->shapes.at(0).outline.bounds().right, 5);
    EXPECT_FALSE(ofUse.clip->clip);
    const ClipShape both = first("<use href='#r' clip-path='url(#j)'/>");
    ASSERT_TRUE(both.clip && both.clip->clip);
    EXPECT_EQ(both.clip->shapes.at(0).outline.bounds().right, 5);
    EXPECT_EQ(both.clip->clip->shapes.at(0).outline.bounds().right, 7);
    const auto own = clipOf(readOk(svgFile(
        inner + "<clipPath id='c' clip-path='url(#j)'><rect width='9' height='9'/></clipPath>" + kClipped)));
    ASSERT_TRUE(own && own->clip);
    EXPECT_EQ(own->clip->shapes.at(0).outline.bounds().right, 7);
}

TEST(ClipPaths, OfNoElementClipNothing) {
    for (const char* reference : {"none", "NONE", "url(#nothing)", "url(#r)"}) {
        const Drawing drawing =
            readOk(svgFile("<rect id='r' width='9' height='9' clip-path='" + std::string(reference) + "'/>"));
        EXPECT_FALSE(clipOf(drawing)) << reference;
        EXPECT_THAT(drawing.notes(), IsEmpty()) << reference;
    }
}

TEST(ClipPaths, ThatCannotBeShownAreNamed) {
    const auto notesFor = [](const std::string& reference) {
        const Drawing drawing = readOk(svgFile("<rect width='9' height='9' clip-path='" + reference + "'/>"));
        EXPECT_FALSE(clipOf(drawing)) << reference;
        return drawing.notes();
    };
    EXPECT_THAT(notesFor("circle(50%)"), ElementsAre(HasSubstr("other than outlines")));
    EXPECT_THAT(notesFor("url(other.svg#c)"), ElementsAre(HasSubstr("outside the file")));
}

TEST(ClipPaths, LoseShapesThatLieBeyondAllNumbers) {
    const Drawing drawing = readOk(svgFile(
        clipPath("<rect width='9' height='9' transform='scale(1e308)'/><rect width='9' height='9'/>") +
        kClipped));
    EXPECT_EQ(clipOf(drawing)->shapes.size(), 1U);
    EXPECT_THAT(drawing.notes(), ElementsAre(HasSubstr("out of range")));
}

TEST(ClipPaths, AreReadForEachBoxWhoseSharesTheyAre) {
    const std::string shares =
        "<clipPath id='c' clipPathUnits='objectBoundingBox'><rect width='.5' height='1'/></clipPath>";
    const Drawing drawing = readOk(svgFile(shares + "<rect width='10' height='10' clip-path='url(#c)'/>"
                                                    "<rect width='40' height='10' clip-path='url(#c)'/>"));
    ASSERT_EQ(drawing.size(), 2U);
    EXPECT_EQ(drawing.object(0)->group->clip->shapes.at(0).outline.bounds().right, 5);
    EXPECT_EQ(drawing.object(1)->group->clip->shapes.at(0).outline.bounds().right, 20);
}

} // namespace
