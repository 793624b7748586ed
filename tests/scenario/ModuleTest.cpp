// What the module shows, shares and leaves behind.
#include "easel/interface/PluginModule.h"
#include "easel/interface/ToolPalette.h"
#include "tests/scenario/Player.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <array>
#include <cstdio>
#include <dlfcn.h>
#include <memory>
#include <sstream>

namespace {

using nlohmann::json;
using testing::ElementsAre;

std::string outputOf(const std::string& command) {
    const std::unique_ptr<std::FILE, int (*)(std::FILE*)> pipe(popen(command.c_str(), "r"), pclose);
    std::string output;
    std::array<char, 4096> part;
    while (pipe && std::fgets(part.data(), static_cast<int>(part.size()), pipe.get()))
        output += part.data();
    return output;
}

bool isLoaded() {
    void* library = dlopen(GRADIENT_MODULE, RTLD_NOW | RTLD_NOLOAD);
    if (library)
        dlclose(library);
    return library != nullptr;
}

TEST(Module, ExportsItsEntryAndNothingElse) {
    std::istringstream symbols(outputOf("nm -D --defined-only " GRADIENT_MODULE));
    std::vector<std::string> names;
    for (std::string address, kind, name; symbols >> address >> kind >> name;)
        names.push_back(kind + " " + name);
    EXPECT_THAT(names, ElementsAre("T MainEntry"));
}

TEST(Module, UnloadsAfterUse) {
    EXPECT_FALSE(isLoaded());
    {
        easel::host::PluginModule module(GRADIENT_MODULE);
        EXPECT_TRUE(isLoaded());
        EXPECT_EQ(module.send(17), 0);
    }
    EXPECT_FALSE(isLoaded());
    EXPECT_TRUE(easel::host::thePalette().tools().empty());
}

TEST(Module, OwnsItsSharingTable) {
    // Equal gradients, one given by the host and two by the plug-in: shared within each table and not across
    // them.
    const tests::Played played = tests::playWithTool(R"(
add rect host 10 10 50 50
add rect first 110 10 50 50
add rect second 210 10 50 50
gradient host 1 0 0.5 0.5 0.5 0.5 0:0,0,0 1:65535,65535,65535
click 120 20
click 220 20
print object host
print object first
print object second
)");
    std::vector<json> resources;
    for (json gradient : played.all("gradient")) {
        resources.push_back(gradient["resource"]);
        gradient.erase("resource");
        json first = played.all("gradient")[0];
        first.erase("resource");
        EXPECT_EQ(gradient, first);
    }
    EXPECT_THAT(resources, ElementsAre(1, 2, 2));
}

TEST(Module, StartsAFreshTableWhenItIsLoadedAnew) {
    const tests::Played played = tests::playWithTool(R"(
add rect first 110 10 50 50
add rect second 210 10 50 50
click 120 20
quit
start
click 220 20
print object first
print object second
)");
    const auto gradients = played.all("gradient");
    EXPECT_EQ(gradients[0]["resource"], 1);
    EXPECT_EQ(gradients[1]["resource"], 2);
}

} // namespace
