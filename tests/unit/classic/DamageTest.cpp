// Where a user's things are kept, and what is said of files that are damaged.
#include "easel/classic/FilePair.h"
#include "easel/classic/GradientBytes.h"
#include "easel/classic/HostFiles.h"
#include "easel/classic/PluginResources.h"
#include "easel/classic/ResourceFork.h"
#include "tests/support/EnvironmentVariable.h"
#include "tests/support/ErrorOf.h"
#include "tests/unit/classic/PairFixture.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <set>

using namespace easel::classic;
using testing::HasSubstr;
using tests::EnvironmentVariable;
using tests::writeContent;

namespace {

TEST(StoragePlaces, AreWhereTheVariableSaysOrInTheUsersHome) {
    const EnvironmentVariable data("XDG_DATA_HOME", "/data");
    {
        const EnvironmentVariable config("XDG_CONFIG_HOME", "/config");
        EXPECT_EQ(StoragePlaces::ofUser().preferences, "/config/kestrad");
        EXPECT_EQ(StoragePlaces::ofUser().trash, "/data/Trash");
    }
    for (const char* none : {static_cast<const char*>(nullptr), "", "config"}) {
        const EnvironmentVariable config("XDG_CONFIG_HOME", none);
        {
            const EnvironmentVariable home("HOME", "/home/one");
            EXPECT_EQ(StoragePlaces::ofUser().preferences, "/home/one/.config/kestrad");
        }
        const EnvironmentVariable home("HOME", nullptr);
        EXPECT_EQ(StoragePlaces::ofUser().preferences, "/.config/kestrad");
    }
}

TEST(Damage, IsSaidInOtherWordsForEachKind) {
    std::set<std::string> said;
    for (const auto damage :
         {GradientDamage::NotAGradient, GradientDamage::UnknownVersion, GradientDamage::WrongLength,
          GradientDamage::WrongChecksum, GradientDamage::WrongStopCount})
        said.insert(describe(damage));
    EXPECT_EQ(said.size(), 5U);
    EXPECT_THAT(describe(GradientDamage::UnknownVersion), HasSubstr("later version"));
    EXPECT_THAT(describe(GradientDamage::WrongChecksum), HasSubstr("checksum"));
    for (const auto damage :
         {ForkDamage::TooShort, ForkDamage::MapOutside, ForkDamage::DataOutside, ForkDamage::ListOutside,
          ForkDamage::NameOutside, ForkDamage::ResourceOutside, ForkDamage::ResourcesOverlap})
        said.insert(describe(damage));
    EXPECT_EQ(said.size(), 12U);
    EXPECT_THAT(describe(ForkDamage::ResourcesOverlap), HasSubstr("overlap"));
    EXPECT_EQ(said.count(""), 0U);
}

TEST(FilePairs, AHeaderThatCannotBeReadIsNamed) {
    const tests::TemporaryFolder folder;
    const FilePair file{folder.path(), "a.GRD"};
    writeContent(file.data(), "");
    EXPECT_TRUE(readHeader(file)) << "without a header file it is an empty one";
    writeContent(file.header(), "no header");
    EXPECT_EQ(tests::errorOf(readHeader(file)).file, file.header());
    std::filesystem::remove(file.header());
    std::filesystem::create_directory(file.header());
    EXPECT_THAT(tests::errorOf(readHeader(file)).reason, HasSubstr("folder"));
    EXPECT_FALSE(exists({folder.path(), "none"}));
    std::filesystem::create_directory(folder / "folder");
    EXPECT_FALSE(exists({folder.path(), "folder"}));
}

TEST(FilePairs, TheEndingTellsTheTypeWhereTheHeaderIsDamaged) {
    const tests::TemporaryFolder folder;
    for (const char* name : {"a.GRD", "b.other"}) {
        const FilePair file{folder.path(), name};
        EXPECT_EQ(readFinderInfo(file).type, 0U) << "without a header file nothing is known";
        tests::dropFile(folder.path(), name, "content", tests::kResourceType);
        EXPECT_EQ(readFinderInfo(file).type, tests::kResourceType);
        const std::string header = tests::contentOf(file.header());
        for (const std::string& damaged :
             {std::string(), std::string("no header"), header.substr(0, 30), header.substr(0, 60)}) {
            writeContent(file.header(), damaged);
            EXPECT_EQ(readFinderInfo(file).type,
                      std::string(name).ends_with(".GRD") ? tests::kTemplateType : 0U)
                << damaged.size();
        }
    }
}

// The reason why a resource file with this in it is refused.
std::string refusalOf(const std::string& inner) {
    return tests::errorOf(PluginResources::parse({"<resources>" + inner + "</resources>", "In.xml"})).reason;
}

std::string dialogWith(const std::string& items) {
    return "<dialog id='1' width='9' height='9'>" + items + "</dialog>";
}

TEST(ResourceFlaws, AreFoundInNumbersTextsAndNames) {
    const std::string item = "<user item='1' bounds='1 1 2 2'/>";
    const std::pair<std::string, const char*> flaws[] = {
        {"<strings id='1'><string>" + std::string(256, 'x') + "</string></strings>", "more than 255"},
        {"<strings id='-32769'/>", "16-bit"},
        {dialogWith("<user item='1' bounds='1 1 2 2' align='middle'/>"), "alignment"},
        {dialogWith("<user item='1' bounds='1 3 2 2'/>"), "bounds"},
        {dialogWith(item + item), "number of an item before it"},
        {dialogWith("<user item='1' bounds='1 1 2 2 3'/>"), "more than it may"},
        {dialogWith(item + "<user item='3' bounds='1 1 2 2'/>"), "without a gap"},
        {"<dialog id='1' width='9' height='0'>" + item + "</dialog>", "no size"},
        {"<icon id='1' file='.'/>", "beside this file"},
        {"<icon id='1' file='..'/>", "beside this file"},
        {"<cursor id='1' file='c' hotspot='1 1' size='5 0'/>", "size"},
        {"<cursor id='1' file='c' hotspot='1 1' size='257 5'/>", "size"},
        {"<cursor id='1' file='c' hotspot='1 1' size='5 257'/>", "size"},
        {"<alert id='1' text='&#26085;'/>", "cannot hold"}};
    for (const auto& [xml, reason] : flaws)
        EXPECT_THAT(refusalOf(xml), HasSubstr(reason)) << xml;
}

TEST(ResourceFlaws, AreNotSeenInComments) {
    const auto resources = PluginResources::parse(
        {"<resources><!-- one --><dialog id='1' width='9' height='9'><!-- two --><user item='1' "
         "bounds='1 1 2 2' align='left'/></dialog><menu id='2'><!-- three "
         "--><entry>a</entry></menu></resources>",
         "In.xml"});
    ASSERT_TRUE(resources);
    EXPECT_EQ(resources->dialog(1)->items.size(), 1U);
    EXPECT_EQ(resources->menu(2)->size(), 1U);
}

} // namespace
