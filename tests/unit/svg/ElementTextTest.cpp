// Pieces of elements as they are written, and as they are found in the text of a file.
#include "easel/svg/write/ElementText.h"
#include "easel/svg/write/RawTag.h"
#include "easel/svg/write/StyleText.h"

#include <gtest/gtest.h>

namespace {

using namespace easel::svg;
using easel::drawing::Stroke;

TEST(ElementText, TheDocumentHasItsSizeAtTheScaleAndItsOwnUnits) {
    EXPECT_EQ(documentTag(30, 20, 2),
              R"(<svg xmlns="http://www.w3.org/2000/svg" width="60" height="40" viewBox="0 0 30 20">)");
}

TEST(ElementText, DashesAreStatedWithWhereTheyBegin) {
    Stroke stroke;
    EXPECT_EQ(penText(stroke, Defaults::LeftOut), "");
    EXPECT_EQ(penText(stroke, Defaults::Stated).find("dash"), std::string::npos)
        << "where nothing is dashed there is nothing to state";
    stroke.dashes = {3, 2};
    EXPECT_EQ(penText(stroke, Defaults::LeftOut), R"( stroke-dasharray="3 2")");
    EXPECT_NE(penText(stroke, Defaults::Stated).find(R"( stroke-dashoffset="0")"), std::string::npos);
    stroke.dashOffset = -1;
    EXPECT_EQ(penText(stroke, Defaults::LeftOut), R"( stroke-dasharray="3 2" stroke-dashoffset="-1")");
}

TEST(RawTag, AValueMayBeEmpty) {
    const std::string text = R"(<r fill="" id="a"/>)";
    const RawTag tag(text, 0);
    ASSERT_EQ(tag.attributes().size(), 2U);
    EXPECT_EQ(tag.value("fill"), "");
    EXPECT_EQ(tag.value("id"), "a");
}

} // namespace
