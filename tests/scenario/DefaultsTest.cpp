// The current gradient from one run to the next.
#include "easel/classic/DefaultsStore.h"
#include "tests/scenario/Templates.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using namespace tests;
using nlohmann::json;
namespace fs = std::filesystem;
namespace classic = easel::classic;
namespace files = easel::files;

namespace {

constexpr std::uint32_t kType = classic::fourCharacters("GRDT");
constexpr std::int16_t kId = 10001;

classic::DefaultsStore storeOf(const Player& player) {
    return classic::DefaultsStore({player.preferences(), player.folder() / "data/Trash"});
}

// Gives a rectangle the current gradient and prints it.
const std::string kShowCurrent = "new 400 300\nadd rect r 0 0 50 50\nstart\nclick 20 20\nprint object r\n";

const json kDefaultStops = {{0.0, 0, 0, 0}, {1.0, 65535, 65535, 65535}};

void expectDefault(const json& gradient) {
    EXPECT_EQ(gradient["type"], 1);
    EXPECT_EQ(gradient["angle"], 0.0);
    EXPECT_EQ(gradient["start"], json({0.5, 0.5}));
    EXPECT_EQ(gradient["end"], json({0.5, 0.5}));
    EXPECT_EQ(gradient["startRadius"], 0.0);
    EXPECT_EQ(gradient["endRadius"], 0.0);
    EXPECT_EQ(gradient["stops"], kDefaultStops);
}

json currentGradient(const Player& player) {
    return player.playToEnd(kShowCurrent).answers.back()["gradient"];
}

CGradientData radialGradient() {
    auto gradient = threeStopGradient();
    gradient.SetType(kRadialGradient);
    gradient.SetAngle(30);
    gradient.SetStart({0.1, 0.2});
    return gradient;
}

TEST(Defaults, AFirstStartHasTheDefaultGradient) {
    expectDefault(currentGradient(Player()));
}

TEST(Defaults, AStoredGradientIsTheCurrentOneAfterTheStart) {
    const Player player;
    ASSERT_TRUE(storeOf(player).put(
        {kType, kId, 0, "Gradient Default", *classic::gradientToBytes(radialGradient())}));
    const auto gradient = currentGradient(player);
    EXPECT_EQ(gradient["type"], 2);
    EXPECT_EQ(gradient["angle"], 30.0);
    EXPECT_EQ(gradient["stops"].size(), 3U);
}

TEST(Defaults, ABlockThatIsNoGradientGivesTheDefaultGradientAndNotAPartOfIt) {
    const auto whole = *classic::gradientToBytes(radialGradient());
    auto flipped = whole;
    flipped[flipped.size() - 8] ^= 0x10;
    for (const auto& damaged : {flipped, files::Bytes(whole.begin(), whole.begin() + 80), files::Bytes()}) {
        const Player player;
        ASSERT_TRUE(storeOf(player).put({kType, kId, 0, "Gradient Default", damaged}));
        expectDefault(currentGradient(player));
    }
}

TEST(Defaults, AChangeByTheOptionsIsBackAfterARestart) {
    const Player player;
    player.playToEnd("start\nnew 100 100\noptions\nhit 11\nhit 1\nquit\n");
    EXPECT_EQ(currentGradient(player)["type"], 2);
}

TEST(Defaults, AChangeByTheOptionsIsBackAfterTheModuleWasLoadedAnew) {
    const auto played = Player().playToEnd("new 100 100\nstart\noptions\nhit 11\nhit 1\nquit\nstart\n"
                                           "add rect r 0 0 50 50\nclick 20 20\nprint object r\n");
    EXPECT_EQ(played.answers.back()["gradient"]["type"], 2);
}

TEST(Defaults, ShuttingDownWithoutStartingUpStoresTheDefaultGradient) {
    const Player player;
    const auto played = player.playToEnd("message 2\nprint defaults\n");
    EXPECT_EQ(played["defaults"],
              json::array({{{"type", "GRDT"}, {"id", 10001}, {"name", "Gradient Default"}, {"bytes", 104}}}));
    const auto stored = storeOf(player).read().value();
    EXPECT_EQ(stored.find(kType, kId)->data, *classic::gradientToBytes(CGradientData()));
}

TEST(Defaults, EndingWithoutQuittingStoresNothing) {
    const Player player;
    player.playToEnd("start\n");
    EXPECT_FALSE(fs::exists(storeOf(player).file()));
}

TEST(Defaults, OtherEntriesOfTheStoreAreKept) {
    const Player player;
    ASSERT_TRUE(storeOf(player).put({kType, 7, 0, "Other", {1, 2, 3}}));
    const auto played = player.playToEnd("start\nquit\nprint defaults\n");
    EXPECT_EQ(played["defaults"].size(), 2U);
    EXPECT_EQ(storeOf(player).read().value().find(kType, 7)->data, (files::Bytes{1, 2, 3}));
}

TEST(Defaults, StartingReadsOnceAndShuttingDownWritesOnce) {
    const auto played = Player().playToEnd("journal on\nstart\nprint journal\nquit\nprint journal\n");
    const auto calls = [&](std::size_t answer) {
        std::vector<std::string> defaults;
        for (const std::string call : played.answers[answer]["journal"])
            if (call.find("DefaultsResource") != std::string::npos || call.starts_with("MakeGradientData"))
                defaults.push_back(call);
        return defaults;
    };
    EXPECT_EQ(calls(0), std::vector<std::string>{"GetDefaultsResource(1196573780, 10001)"});
    EXPECT_EQ(calls(1),
              (std::vector<std::string>{"MakeGradientData()",
                                        "SetDefaultsResource(1196573780, 10001, \"Gradient Default\")"}));
}

TEST(Defaults, ADamagedFileGivesTheDefaultGradientAndIsKeptInTheTrashWhenItIsReplaced) {
    const Player player;
    writeContent(storeOf(player).file(), "rubbish");
    expectDefault(currentGradient(player));
    player.playToEnd("start\nquit\n");
    EXPECT_TRUE(storeOf(player).read());
    EXPECT_EQ(contentOf(player.folder() / "data/Trash/files/Defaults.rsrc"), "rubbish");
}

// The folder cannot be made below a file, whoever runs the test.
TEST(Defaults, WithoutAFolderForPreferencesTheToolWorksAndTheUserIsToldWhyAtTheStartAndAtEachSave) {
    const Player player;
    writeContent(player.folder() / "file", "");
    writeContent(player.folder() / "s.easel",
                 kShowCurrent + "options\n" + saveAs("a") +
                     "print dialog\nanswer yes\nchoose 9 2\ncommand cancel\nhit 11\nhit 1\nclick 20 20\n"
                     "quit\n");
    const auto played = player.run({"play", "s.easel", "--prefs", "file/below", "--plugin", GRADIENT_MODULE});
    EXPECT_EQ(played.exitCode, 2) << "a template and the gradient were to be kept";
    expectDefault(played["gradient"]);
    const std::string why =
        (fs::canonical(player.folder()) / "file/below/Gradient Templates").string() + ": Not a directory. ";
    EXPECT_EQ(played["dialog"]["text"], why + "Nothing was saved.");
    EXPECT_EQ(played.messages,
              why + "The current gradient and templates will not be kept.\n" + why + "Nothing was saved.\n");
}

TEST(Defaults, AFileInPlaceOfTheTemplateFolderIsLeftAloneAndNamedWhenATemplateIsSaved) {
    const Player player;
    writeContent(templateFolder(player), "kept");
    const auto played = player.play(inEditor(saveAs("a") + "answer yes\n") + "quit\n");
    EXPECT_EQ(played.exitCode, 2);
    EXPECT_THAT(played.messages,
                testing::EndsWith("Gradient Templates: Not a directory. Nothing was saved.\n"));
    EXPECT_EQ(contentOf(templateFolder(player)), "kept");
    EXPECT_TRUE(fs::exists(storeOf(player).file())) << "the current gradient is kept nevertheless";
}

TEST(Defaults, AFolderForPreferencesThatIsMissingIsMade) {
    const Player player;
    fs::remove(player.preferences());
    player.playToEnd("start\nquit\n");
    EXPECT_TRUE(fs::exists(storeOf(player).file()));
    EXPECT_TRUE(fs::is_directory(templateFolder(player)));
}

} // namespace
