// The plug-in's resource file.
#include "easel/classic/PluginResources.h"
#include "tests/support/ErrorOf.h"
#include "tests/support/TemporaryFolder.h"

#include <gtest/gtest.h>

using namespace easel::classic;
using namespace easel::files;

namespace {

Result<PluginResources> parse(const std::string& inner) {
    return PluginResources::parse({"<resources>" + inner + "</resources>", "/plug/In/In.xml"});
}

PluginResources parsed(const std::string& inner) {
    const auto result = parse(inner);
    if (!result)
        ADD_FAILURE() << result.error().message();
    return result.value();
}

std::string refusal(const std::string& inner) {
    const auto result = parse(inner);
    return result ? "accepted" : result.error().message();
}

TEST(PluginResources, StringsCountFromOneAndAreTrimmed) {
    const auto resources =
        parsed("<strings id='5'><string>\n Gradient </string><string>Caf\u00E9</string></strings>");
    EXPECT_EQ(resources.string(5, 1), "Gradient");
    EXPECT_EQ(resources.string(5, 2), "Caf\u00E9");
    for (const int index : {-1, 0, 3})
        EXPECT_EQ(resources.string(5, index), "");
    EXPECT_EQ(resources.string(6, 1), "");
}

TEST(PluginResources, ADialogHasItsItemsInTheOrderOfTheirNumbers) {
    const auto resources =
        parsed("<menu id='7'><entry>Save\u2026</entry><separator/><entry enabled='no'>(x;y</entry></menu>"
               "<dialog id='5000' title='Edit' width='448' height='432'>"
               "<popup item='2' bounds='16 24 48 216' menu='7' tip='t'/>"
               "<button item='1' bounds='384 336 416 424' title='OK' default='yes' label='l'/>"
               "<static item='3' bounds='1 2 3 4' title='Name:' align='right'/>"
               "<separator item='4' bounds='-1 -2 3 4'/></dialog>");
    const auto* const dialog = resources.dialog(5000);
    ASSERT_NE(dialog, nullptr);
    EXPECT_EQ(dialog->title, "Edit");
    EXPECT_EQ(dialog->width, 448);
    EXPECT_EQ(dialog->height, 432);
    ASSERT_EQ(dialog->items.size(), 4U);
    EXPECT_EQ(dialog->items[0].kind, ItemResourceKind::Button);
    EXPECT_EQ(dialog->items[0].role, ButtonResourceRole::Default);
    EXPECT_EQ(dialog->items[0].top, 384);
    EXPECT_EQ(dialog->items[0].left, 336);
    EXPECT_EQ(dialog->items[0].bottom, 416);
    EXPECT_EQ(dialog->items[0].right, 424);
    EXPECT_EQ(dialog->items[0].label, "l");
    EXPECT_EQ(dialog->items[1].menu, 7);
    EXPECT_EQ(dialog->items[1].tip, "t");
    EXPECT_EQ(dialog->items[2].alignment, AlignmentResource::Right);
    EXPECT_EQ(dialog->items[3].top, -1);
    ASSERT_EQ(resources.menu(7)->size(), 3U);
    EXPECT_EQ(resources.menu(7)->at(0).text, "Save\u2026");
    EXPECT_EQ(resources.menu(7)->at(1).kind, MenuEntryResource::Kind::Separator);
    EXPECT_EQ(resources.menu(7)->at(2).text, "(x;y");
    EXPECT_TRUE(resources.menu(7)->at(0).enabled);
    EXPECT_FALSE(resources.menu(7)->at(2).enabled);
    EXPECT_EQ(resources.dialog(1), nullptr);
}

TEST(PluginResources, AlertsCursorsAndIconsAreFound) {
    const auto resources =
        parsed("<alert id='9320' title='T' text='Q?' detail='D' confirm='Yes' decline='No'/>"
               "<cursor id='5000' file='c.svg' hotspot='7 8' size='32 16'/><icon id='5100' file='i.svg'/>");
    EXPECT_EQ(resources.alert(9320)->title, "T");
    EXPECT_EQ(resources.alert(9320)->text, "Q?");
    EXPECT_EQ(resources.alert(9320)->detail, "D");
    EXPECT_EQ(resources.alert(9320)->confirm, "Yes");
    EXPECT_EQ(resources.alert(9320)->decline, "No");
    EXPECT_EQ(resources.cursor(5000)->file, "/plug/In/c.svg");
    EXPECT_EQ(resources.cursor(5000)->hotH, 7);
    EXPECT_EQ(resources.cursor(5000)->hotV, 8);
    EXPECT_EQ(resources.cursor(5000)->width, 32);
    EXPECT_EQ(resources.cursor(5000)->height, 16);
    EXPECT_EQ(resources.icon(5100)->file, "/plug/In/i.svg");
}

TEST(PluginResources, ATextHasUpTo255CharactersAndACursorUpTo256PixelsEachWay) {
    const auto text = [](std::size_t length) {
        return "<strings id='1'><string>" + std::string(length, 'x') + "</string></strings>";
    };
    EXPECT_EQ(parsed(text(255)).string(1, 1).size(), 255U);
    EXPECT_NE(refusal(text(256)).find("more than 255 characters"), std::string::npos);
    const auto cursor = [](const std::string& size) {
        return "<cursor id='1' file='c' hotspot='0 0' size='" + size + "'/>";
    };
    for (const char* const size : {"1 1", "1 256", "256 1"})
        EXPECT_NE(parsed(cursor(size)).cursor(1), nullptr) << size;
    for (const char* const size : {"0 1", "1 0", "257 1", "1 257"})
        EXPECT_NE(refusal(cursor(size)).find("has a size outside 1 to 256"), std::string::npos) << size;
}

TEST(PluginResources, NumbersHaveSixteenBitsWithASign) {
    const auto icon = [](const std::string& id) { return "<icon id='" + id + "' file='i.svg'/>"; };
    EXPECT_NE(parsed(icon("32767")).icon(32767), nullptr);
    EXPECT_NE(parsed(icon("-32768")).icon(-32768), nullptr);
    for (const char* const id : {"32768", "-32769"})
        EXPECT_NE(refusal(icon(id)).find("16-bit"), std::string::npos) << id;
}

TEST(PluginResources, ADialogHasUpToAThousandItems) {
    const auto dialog = [](int items) {
        std::string text = "<dialog id='1' width='1' height='1'>";
        for (int item = 1; item <= items; ++item)
            text += "<user item='" + std::to_string(item) + "' bounds='1 1 1 1'/>";
        return text + "</dialog>";
    };
    EXPECT_EQ(parsed(dialog(1000)).dialog(1)->items.size(), 1000U);
    EXPECT_NE(refusal(dialog(1001)), "accepted");
}

TEST(PluginResources, WhatIsWrongIsNamedWithTheFileAndTheElement) {
    EXPECT_EQ(refusal("<dialog id='1' width='9' height='9'><button item='1' bounds='1 2 3'/></dialog>"),
              "/plug/In/In.xml: <button item=\"1\"> needs 4 16-bit number(s) in \"bounds\"");
    const std::pair<const char*, const char*> flaws[] = {
        {"<strings id='70000'/>", "16-bit"},
        {"<strings id='5 6'/>", "more than it may"},
        {"<strings/>", "16-bit"},
        {"<strings id='1'/><strings id='1'/>", "id of one before it"},
        {"<strings id='1'><string>\u65E5</string></strings>", "cannot hold: \u65E5"},
        {"<menu id='1'><item/></menu>", "menu entry"},
        {"<sound id='1'/>", "no kind of resource"},
        {"<icon id='1' file='../secret'/>", "beside this file"},
        {"<icon id='1'/>", "beside this file"},
        {"<cursor id='1' file='c' hotspot='1 1' size='0 5'/>", "size"},
        {"<dialog id='1' width='9' height='9'/>", "without a gap"},
        {"<dialog id='1' width='0' height='9'><user item='1' bounds='1 1 2 2'/></dialog>", "no size"},
        {"<dialog id='1' width='9' height='9'><user item='2' bounds='1 1 2 2'/></dialog>", "without a gap"},
        {"<dialog id='1' width='9' height='9'><user item='1' bounds='3 1 2 2'/></dialog>", "bounds"},
        {"<dialog id='1' width='9' height='9'><dial item='1' bounds='1 1 2 2'/></dialog>",
         "kind of dialog item"},
        {"<dialog id='1' width='9' height='9'><popup item='1' menu='4' bounds='1 1 2 2'/></dialog>",
         "menu 4, which is missing"},
    };
    for (const auto& [xml, reason] : flaws)
        EXPECT_NE(refusal(xml).find(reason), std::string::npos) << xml << " -> " << refusal(xml);
}

TEST(PluginResources, AFileThatIsNoResourceFileIsRefused) {
    const auto reasonFor = [](std::string_view xml) {
        return tests::errorOf(PluginResources::parse({xml, "f.xml"})).reason;
    };
    EXPECT_NE(reasonFor("").find("XML"), std::string::npos);
    EXPECT_NE(reasonFor("<resources>").find("XML"), std::string::npos);
    EXPECT_EQ(reasonFor("<svg/>"), "it has no <resources>");
}

TEST(PluginResources, TheFileHasTheNameOfItsFolder) {
    const tests::TemporaryFolder folder;
    const auto missing = PluginResources::read(folder / "Tool");
    EXPECT_EQ(tests::errorOf(missing).file, folder / "Tool/Tool.xml");
    tests::writeContent(folder / "Tool/Tool.xml", "<resources><icon id='1' file='a.svg'/></resources>");
    const auto found = PluginResources::read(folder / "Tool");
    ASSERT_TRUE(found);
    EXPECT_EQ(found.value().icon(1)->file, folder / "Tool/a.svg");
}

} // namespace
