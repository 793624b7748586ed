// Where tags and elements end, which entities stand for what, and what the text of a record holds.
#include "easel/svg/text/Entities.h"
#include "easel/svg/text/ReadError.h"
#include "easel/svg/text/RecordText.h"
#include "easel/svg/text/Tags.h"
#include "easel/svg/text/XmlTree.h"

#include <gtest/gtest.h>

using namespace easel::svg;

namespace {

// The first element of the text, its tags included.
std::string_view elementIn(std::string_view text) {
    return text.substr(0, elementEnd(text, 0));
}

TEST(Markup, AnElementReachesToItsOwnEndTag) {
    for (const std::string_view element :
         {"<a/>", "<a></a>", "<a><a></a><b/></a>", "<a x='>'>1</a>", "<a x=\"/>\"><b y='</a>'/></a>",
          "<a><!-- </a> --></a>", "<a><![CDATA[</a>]]></a>", "<a><?p </a> ?></a>", "<a><!DOCTYPE x></a>"}) {
        const std::string text = std::string(element) + "<after></after>";
        EXPECT_EQ(elementIn(text), element);
    }
}

TEST(Markup, AnElementThatDoesNotEndReachesToTheEndOfTheText) {
    for (const std::string_view text :
         {"<a><b></b>", "<a>", "<a", "<a x='", "<a><!-- ", "<a><![CDATA[ </a>", "<a><?p </a>", "<a><"})
        EXPECT_EQ(elementIn(text), text);
}

TEST(Markup, ContentEndsWhereTheEndTagBegins) {
    EXPECT_EQ(contentEnd("<a>12</a>", 0), 5U);
    EXPECT_EQ(contentEnd("<a/>12", 0), 4U);
    EXPECT_EQ(tagEnd("<a b='>' c>d", 0), 11U);
    EXPECT_TRUE(closesItself("<a/>", 4));
    EXPECT_FALSE(closesItself("<a>", 3));
    EXPECT_FALSE(closesItself(">", 1));
}

TEST(Markup, EntitiesAreThoseOfTheInternalSubset) {
    Entities entities("<!DOCTYPE svg [<!ENTITY a \"1\"> <!ENTITY  b '&a;2'> <!ENTITY c SYSTEM 'x'> <!ENTITY "
                      "a 'later'>\n]><svg/>");
    EXPECT_FALSE(entities.empty());
    EXPECT_EQ(entities.expanded("&a; &b; &c; &d; &a & &amp;"), "1 12 &c; &d; &a & &amp;")
        << "the first definition counts";
    for (const char* without : {"<svg/>", "<!DOCTYPE svg>", "<!DOCTYPE svg", "<!DOCTYPE svg []><x/>",
                                "<svg>[<!ENTITY a '1'>]</svg>"})
        EXPECT_TRUE(Entities(without).empty()) << without;
    Entities circle("<!DOCTYPE svg [<!ENTITY a '&b;'><!ENTITY b '&a;'>]>");
    EXPECT_THROW(circle.expanded("&a;"), ReadError);
}

TEST(Markup, ReferencesToOtherFilesAreNone) {
    EXPECT_EQ(localId("#a"), "a");
    EXPECT_EQ(localId("url(#a)"), "a");
    EXPECT_EQ(localId("url( '#a' )"), "a");
    EXPECT_EQ(localId("url(\"#a\")"), "a");
    for (const char* other : {"", "a", "url(a)", "file.svg#a", "url(file.svg#a)", "url('", "'"})
        EXPECT_EQ(localId(other), "") << other;
}

TEST(Markup, OnlyElementsOfSvgHaveANameOfIt) {
    const std::string text = "<s:svg xmlns:s='http://www.w3.org/2000/svg' xmlns:o='urn:other'><s:g "
                             "id='g'/><o:g id='o'/></s:svg>";
    const XmlTree tree(text);
    EXPECT_EQ(tree.prefix(), "s:");
    EXPECT_EQ(tree.svgName(tree.byId("g")), "g");
    EXPECT_EQ(tree.svgName(tree.byId("o")), "");
    EXPECT_FALSE(tree.byId("none"));
    EXPECT_EQ(tree.elementCount(), 3U);
}

TEST(RecordText, OfDamagedNumbersIsNone) {
    const std::string head = "1 0 0 0 1 1 0 0";
    EXPECT_TRUE(parseRecord(head + ";0 1 2 3"));
    for (const std::string& text :
         {std::string(), head, std::string("x"), std::string("1"), std::string("1 0 0 0 1"),
          std::string("1 0 0 0 1 1 0;0 1 2 3"), head + " 9;0 1 2 3", head + ";", head + ";0", head + ";0 1",
          head + ";0 1 2", head + ";0 1 2 3 4", head + ";0 1 2 65536", head + ";0 -1 2 3", head + ";x 1 2 3"})
        EXPECT_FALSE(parseRecord(text)) << text;
}

TEST(RecordText, OfARemainderAscendsAndCanBeTurnedRound) {
    const auto whole = parseRemainder("0 .5;1 1", "1 0 0 2");
    ASSERT_TRUE(whole);
    EXPECT_EQ(whole->opacity, (std::vector<easel::drawing::OpacityStop>{{0, 0.5}, {1, 1}}));
    EXPECT_EQ(whole->ellipse->d, 2);
    EXPECT_EQ(parseRemainder(opacityText(*whole), ellipseText(*whole)), whole);
    EXPECT_TRUE(parseRemainder("", "").value().empty());
    EXPECT_EQ(ellipseText({}), "");
    for (const char* opacity : {"x", "0", "0 x", "0 1 2", "1 1;0 1", "-.1 1", "0 1;1.1 1", "0 -.1", "0 1.1"})
        EXPECT_FALSE(parseRemainder(opacity, "")) << opacity;
    for (const char* ellipse : {"x", "1 0 0", "1 0 0 1 0", "1 1 1 1", "0 0 0 0", "1 0 0 x"})
        EXPECT_FALSE(parseRemainder("", ellipse)) << ellipse;
}

} // namespace
