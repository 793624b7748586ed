// Loading modules that are none.
#include "easel/runtime/PluginModule.h"
#include "easel/svg/Document.h"
#include "tests/support/HostTest.h"

#include <dlfcn.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using easel::runtime::PluginModule;
using testing::HasSubstr;
using testing::StartsWith;

// What the system says, without the file that has been named already.
auto ofLoading() {
    return testing::AllOf(StartsWith("cannot be loaded: "), testing::Not(HasSubstr("/")));
}

// Why the file cannot be loaded, behind its name.
std::string reasonFor(const std::filesystem::path& file, easel::runtime::Process& process) {
    const auto loaded = PluginModule::load(file, process);
    if (loaded)
        return "it was loaded";
    const std::string message = loaded.error().message();
    const std::string name = file.string() + ": ";
    EXPECT_THAT(message, StartsWith(name));
    return message.substr(std::min(name.size(), message.size()));
}

using PluginModuleTest = tests::HostTest;

TEST_F(PluginModuleTest, NamesFileAndReasonOfWhatIsNoModule) {
    tests::writeContent(folder_ / "text.so", "this is not a module");
    tests::writeContent(folder_ / "empty.so", "");
    EXPECT_EQ(reasonFor(folder_ / "missing.so", process_), "no such file");
    EXPECT_EQ(reasonFor(folder_.path(), process_), "not a file");
    EXPECT_THAT(reasonFor(folder_ / "text.so", process_), ofLoading());
    EXPECT_THAT(reasonFor(folder_ / "empty.so", process_), ofLoading());
}

TEST_F(PluginModuleTest, NeedsTheEntry) {
    // The host's own library is a module without the entry.
    Dl_info library{};
    ASSERT_NE(dladdr(reinterpret_cast<const void*>(&easel::svg::readBytes), &library), 0);
    EXPECT_THAT(reasonFor(std::filesystem::absolute(library.dli_fname), process_), HasSubstr("MainEntry"));
}

TEST(PluginMessages, HaveTheNumbersThatPluginsKnow) {
    // As host/Palette.h says.
    EXPECT_EQ(easel::runtime::kStartUpMessage, 1);
    EXPECT_EQ(easel::runtime::kShutDownMessage, 2);
}

TEST(PluginModuleFile, IsExpectedBesideTheProgram) {
    const std::filesystem::path file = PluginModule::defaultFile();
    EXPECT_EQ(file.filename(), "Gradient.so");
    EXPECT_EQ(file.parent_path().filename(), "plugins");
}

} // namespace
