// The texts of a language over those of a plug-in.
#include "easel/classic/PluginResources.h"
#include "tests/support/ErrorOf.h"
#include "tests/support/TemporaryFolder.h"

#include <gtest/gtest.h>

using namespace easel::classic;
using namespace easel::files;

namespace {

constexpr const char* kOwn =
    "<resources>"
    "<strings id='5'><string>Tool</string><!-- kept -->"
    "<string translate='no'>Folder</string><string>Prompt</string></strings>"
    "<menu id='7'><entry>Save</entry><separator/><entry enabled='no'>Load</entry></menu>"
    "<dialog id='5' title='Edit' width='100' height='90'>"
    "<button item='1' bounds='1 2 3 4' title='OK' tip='Accept' default='yes'/>"
    "<popup item='2' bounds='5 6 7 8' menu='7' label='Templates'/></dialog>"
    "<alert id='7' title='T' text='Q' detail='D' confirm='Yes' decline='No'/>"
    "<icon id='5' file='i.svg'/></resources>";

Result<PluginResources> inLanguage(const std::string& inner) {
    const std::string texts = "<resources>" + inner + "</resources>";
    return PluginResources::parse({kOwn, "/plug/In/In.xml"}, ResourceText{texts, "/plug/In/In.de.xml"});
}

TEST(PluginTexts, WhatALanguageSaysTakesThePlaceOfTheTextAndTheRestStays) {
    const auto resources =
        inLanguage("<strings id='5'><string>Werkzeug</string><string/><string>Frage</string></strings>"
                   "<menu id='7'><entry>Sichern</entry><separator/><entry>Laden</entry></menu>"
                   "<dialog id='5' title='Bearbeiten' width='120'>"
                   "<popup item='2' label='Vorlagen' bounds='5 6 7 9'/></dialog>"
                   "<alert id='7' text='F' decline='Nein'/>");
    ASSERT_TRUE(resources) << resources.error().message();
    EXPECT_EQ(resources->string(5, 1), "Werkzeug");
    EXPECT_EQ(resources->string(5, 2), "Folder");
    EXPECT_EQ(resources->string(5, 3), "Frage");
    EXPECT_EQ(resources->menu(7)->at(2).text, "Laden");
    EXPECT_FALSE(resources->menu(7)->at(2).enabled);
    const DialogResource& dialog = *resources->dialog(5);
    EXPECT_EQ(dialog.title, "Bearbeiten");
    EXPECT_EQ(dialog.width, 120);
    EXPECT_EQ(dialog.height, 90);
    EXPECT_EQ(dialog.items[0].title, "OK");
    EXPECT_EQ(dialog.items[0].role, ButtonResourceRole::Default);
    EXPECT_EQ(dialog.items[1].label, "Vorlagen");
    EXPECT_EQ(dialog.items[1].right, 9);
    EXPECT_EQ(dialog.items[1].menu, 7);
    EXPECT_EQ(resources->alert(7)->text, "F");
    EXPECT_EQ(resources->alert(7)->confirm, "Yes");
    EXPECT_EQ(resources->icon(5)->file, "/plug/In/i.svg");
}

TEST(PluginTexts, AStringThatIsTheSameInAllLanguagesStays) {
    const auto resources = inLanguage("<strings id='5'><string/><string>Ordner</string></strings>");
    ASSERT_TRUE(resources);
    EXPECT_EQ(resources->string(5, 2), "Folder");
}

TEST(PluginTexts, WhatThePlugInLacksIsRefusedAndTheFileOfTheLanguageNamed) {
    struct Flaw {
        const char* texts;
        const char* reason;
    };
    const Flaw flaws[] = {
        {"<alert id='8' text='F'/>", "no such resource"},
        {"<dialog id='5'><radio item='1' title='OK'/></dialog>", "no such <radio>"},
        {"<dialog id='5'><button item='1' default='no'/></dialog>", "\"default\" is not for a language"},
        {"<strings id='5'><string/><string/><string/><string>more</string></strings>", "no <string>"},
        {"<menu id='7'><entry/><entry>Laden</entry></menu>", "no <entry>"},
        {"<strings id='5'><string>\xE4\xB8\xAD</string></strings>", "encoding"},
    };
    for (const auto& [texts, reason] : flaws) {
        const auto resources = inLanguage(texts);
        ASSERT_FALSE(resources) << texts;
        EXPECT_EQ(resources.error().file, "/plug/In/In.de.xml");
        EXPECT_NE(resources.error().reason.find(reason), std::string::npos) << resources.error().reason;
    }
}

TEST(PluginTexts, TheFirstLanguageThatHasAFileIsTaken) {
    const tests::TemporaryFolder folder;
    tests::writeContent(folder / "In/In.xml", kOwn);
    const auto toolIn = [&](const std::vector<std::string>& languages) {
        const auto resources = PluginResources::read(folder / "In", languages);
        return resources ? resources->string(5, 1) : resources.error().message();
    };
    tests::writeContent(folder / "In/In.de.xml",
                        "<resources><strings id='5'><string>Werkzeug</string></strings></resources>");
    tests::writeContent(folder / "In/In.fr.xml",
                        "<resources><strings id='5'><string>Outil</string></strings></resources>");
    EXPECT_EQ(toolIn({}), "Tool");
    EXPECT_EQ(toolIn({"it"}), "Tool");
    EXPECT_EQ(toolIn({"de-AT", "de", "fr"}), "Werkzeug");
    EXPECT_EQ(toolIn({"it", "fr", "de"}), "Outil");
}

} // namespace
