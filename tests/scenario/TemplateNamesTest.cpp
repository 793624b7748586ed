// Names that templates can and cannot have.
#include "tests/scenario/Templates.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <ostream>

using namespace tests;
using nlohmann::json;
using testing::ElementsAre;
using testing::UnorderedElementsAre;
namespace fs = std::filesystem;

namespace {

// Every file below the folder, so that nothing anywhere else goes unnoticed.
std::vector<std::string> filesBelow(const fs::path& folder) {
    std::vector<std::string> files;
    for (const auto& entry : fs::recursive_directory_iterator(folder))
        if (entry.is_regular_file())
            files.push_back(entry.path().lexically_relative(folder).string());
    return files;
}

struct OddName {
    const char* oddity;
    const char* typed;
    const char* onDisk;

    // Names the test.
    friend void PrintTo(const OddName& name, std::ostream* out) { *out << name.oddity; }
};

class OddTemplateName : public testing::TestWithParam<OddName> {};

TEST_P(OddTemplateName, IsSavedListedLoadedReplacedAndDeletedInItsFolder) {
    const Player player;
    const std::string typed = GetParam().typed;
    const std::string disk = GetParam().onDisk;
    const auto saved =
        player.playToEnd(inEditor(saveAs(typed) + "print dialog\nprint templates\nchoose 9 5\n"));
    EXPECT_THAT(offered(saved["dialog"]), ElementsAre(typed + ".GRD"));
    EXPECT_THAT(namesIn(saved["templates"]), ElementsAre(typed + ".GRD"));
    EXPECT_THAT(filesBelow(player.preferences()),
                UnorderedElementsAre("Gradient Templates/._" + disk, "Gradient Templates/" + disk));
    player.playToEnd(inEditor("click item 4 " + onRamp(100) + "\n" + saveAs(typed) + "answer yes\n"));
    EXPECT_EQ(stopsStoredIn(templateFolder(player), disk), 3U);
    const auto deleted = player.playToEnd(inEditor(deleteRows("1") + "print templates\n"));
    EXPECT_EQ(deleted["templates"], json::array());
    EXPECT_TRUE(filesBelow(player.preferences()).empty());
}

INSTANTIATE_TEST_SUITE_P(
    Names, OddTemplateName,
    testing::Values(OddName{"two dots", "..", "...GRD"}, OddName{"one dot", ".", "..GRD"},
                    OddName{"hidden", ".hidden", ".hidden.GRD"}, OddName{"slash inside", "a/b", "a:b.GRD"},
                    OddName{"slash alone", "/", ":.GRD"}, OddName{"folder above", "../x", "..:x.GRD"},
                    OddName{"device", "con", "con.GRD"}, OddName{"option and pattern", "-rf *", "-rf *.GRD"},
                    OddName{"shell signs", "a;b(c", "a;b(c.GRD"},
                    OddName{"accents", "Caf\u00E9 \u2020", "Caf\u00E9 \u2020.GRD"},
                    OddName{"longest in bytes",
                            "\u2122\u2122\u2122\u2122\u2122\u2122\u2122\u2122\u2122\u2122\u2122\u2122\u2122"
                            "\u2122\u2122\u2122\u2122\u2122\u2122\u2122",
                            "\u2122\u2122\u2122\u2122\u2122\u2122\u2122\u2122\u2122\u2122\u2122\u2122\u2122"
                            "\u2122\u2122\u2122\u2122\u2122\u2122\u2122.GRD"},
                    OddName{"widest letters", "WWWWWWWWWWWWWWWWWWWW", "WWWWWWWWWWWWWWWWWWWW.GRD"}));

TEST(TemplateNames, AnEmptyNameSavesNothing) {
    const Player player;
    player.playToEnd(inEditor("choose 9 1\nhit 1\n"));
    EXPECT_TRUE(filesBelow(player.preferences()).empty());
}

TEST(TemplateNames, ACharacterThatTheEncodingLacksIsNotAcceptedAndNothingIsWritten) {
    const Player player;
    const auto played = player.playToEnd(
        inEditor("choose 9 1\ntype \"a\u65E5b\"\nprint dialog\nprint window\nhit 1\nprint templates\n"));
    EXPECT_EQ(itemOf(played.all("dialog")[0], 4)["text"], "ab");
    EXPECT_EQ(played["window"]["beeps"], 1);
    EXPECT_THAT(namesIn(played["templates"]), ElementsAre("ab.GRD"));
}

// The plug-in asks whether to replace what it could not resolve. The host does not say that it is there.
TEST(TemplateNames, OneThatNoFileCanHaveIsNotClaimedToExistAndTheUserIsToldWhyNothingWasSaved) {
    for (const auto& [name, reason] :
         {std::pair("a:b", "cannot hold ':'"), {"._a", "cannot begin with '._'"}})
        for (const char* answer : {"yes", "no"}) {
            const Player player;
            const auto played =
                player.play(inEditor(saveAs(name) + "print dialog\nanswer " + answer + "\nprint dialog\n"));
            EXPECT_EQ(played.exitCode, 0);
            const std::string told =
                std::string(name) + ".GRD: the name of a file " + reason + ". Nothing was saved.";
            EXPECT_EQ(played.all("dialog")[0], json({{"id", 9320}, {"kind", "alert"}, {"text", told}}));
            EXPECT_EQ(played.messages, told + "\n");
            EXPECT_TRUE(offered(played["dialog"]).empty());
            EXPECT_TRUE(filesBelow(player.preferences()).empty());
        }
}

TEST(TemplateNames, AfterOneThatNoFileCanHaveQuestionsAreAboutWhatIsThereAgain) {
    const Player player;
    const auto played = player.play(inEditor(saveAs("a") + saveAs("b:c") + "answer no\n" + saveAs("a") +
                                             "print dialog\nanswer no\nchoose 9 2\nselect 1\n"
                                             "command ok\nprint dialog\nanswer yes\n"));
    EXPECT_EQ(played.exitCode, 0) << played.messages;
    EXPECT_EQ(played.all("dialog")[0]["text"], "Replace the template of this name?");
    EXPECT_EQ(played.all("dialog")[1]["text"], "Delete the selected templates?");
}

TEST(TemplateNames, AFileWhoseNameTheHostCannotHoldIsLeftAlone) {
    const Player player;
    writeContent(templateFolder(player) / "\u65E5\u672C.GRD", "kept");
    const auto played = player.playToEnd(inEditor("print templates\n"));
    EXPECT_EQ(played["templates"], json::array());
    EXPECT_EQ(contentOf(templateFolder(player) / "\u65E5\u672C.GRD"), "kept");
}

} // namespace
