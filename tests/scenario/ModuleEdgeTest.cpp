// The plug-in as a module: what it shows to the loader, and that it leaves when it is unloaded.
#include "easel/play/Play.h"
#include "tests/scenario/DynamicSymbols.h"
#include "tests/scenario/Player.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <dlfcn.h>

#include <sstream>

namespace {

using nlohmann::json;
using tests::DynamicSymbol;

bool ModuleIsLoaded() {
    void* const module = ::dlopen(GRADIENT_MODULE, RTLD_NOW | RTLD_NOLOAD);
    if (module != nullptr)
        ::dlclose(module);
    return module != nullptr;
}

// Plays lines in this very process.
std::string PlayHere(const std::string& script) {
    std::istringstream input(script);
    std::ostringstream answers;
    std::ostringstream messages;
    const auto outcome = easel::play::playScenario({"-", {}, GRADIENT_MODULE}, input, answers, messages);
    EXPECT_EQ(outcome, easel::play::PlayOutcome::Played) << messages.str();
    return answers.str();
}

TEST(ModuleEdge, ExportsItsEntryAndNothingElse) {
    std::vector<std::string> exported;
    for (const DynamicSymbol& symbol : tests::dynamicSymbols(GRADIENT_MODULE)) {
        if (symbol.defined)
            exported.push_back(symbol.name);
    }
    EXPECT_THAT(exported, testing::ElementsAre("MainEntry"));
}

TEST(ModuleEdge, HasNoSymbolThatTheLoaderWouldMergeAcrossModules) {
    const std::vector<DynamicSymbol> symbols = tests::dynamicSymbols(GRADIENT_MODULE);
    // The module asks the host for things, so an empty list would mean that the file was not read.
    EXPECT_GT(symbols.size(), 100u);
    for (const DynamicSymbol& symbol : symbols)
        EXPECT_FALSE(symbol.unique) << symbol.name;
}

TEST(ModuleEdge, IsGoneAfterItWasUsedAndUnloaded) {
    ASSERT_FALSE(ModuleIsLoaded());
    void* const module = ::dlopen(GRADIENT_MODULE, RTLD_NOW | RTLD_LOCAL);
    ASSERT_NE(module, nullptr) << ::dlerror();
    EXPECT_TRUE(ModuleIsLoaded());
    ::dlclose(module);
    EXPECT_FALSE(ModuleIsLoaded());

    const std::string answers = PlayHere(R"(
new 300 200
add rect a 10 10 100 50
start
click 20 20
print object a
key option down
click 20 20
choose 9 2
command cancel
hit 1
quit
)");
    EXPECT_THAT(answers, testing::HasSubstr(R"("fillPattern":"solid-black")"));
    EXPECT_FALSE(ModuleIsLoaded());
}

TEST(ModuleEdge, SharesGradientsInATableOfItsOwn) {
    // Object `a` gets its gradient from the host, equal to the one that the tool gives to `b` and `c`.
    const tests::Played played = tests::playWithTool(R"(
add rect a 10 10 50 50
add rect b 110 10 50 50
add rect c 210 10 50 50
gradient a 1 0 0.5 0.5 0.5 0.5 0:0,0,0 1:65535,65535,65535
click 120 20
click 220 20
print object a
print object b
print object c
)");
    const std::vector<json> gradients = played.all("gradient");
    ASSERT_EQ(gradients.size(), 3u);
    for (const char* const field : {"type", "angle", "start", "end", "stops"})
        EXPECT_EQ(gradients[0][field], gradients[1][field]) << field;
    EXPECT_NE(gradients[0]["resource"], gradients[1]["resource"]);
    EXPECT_EQ(gradients[1]["resource"], gradients[2]["resource"]);
}

TEST(ModuleEdge, StartsWithAnEmptyTableWhenLoadedAnew) {
    const tests::Played played = tests::playWithTool(R"(
add rect a 10 10 50 50
add rect b 110 10 50 50
click 20 20
quit
start
click 120 20
print object a
print object b
)");
    const std::vector<json> gradients = played.all("gradient");
    ASSERT_EQ(gradients.size(), 2u);
    EXPECT_EQ(gradients[0]["stops"], gradients[1]["stops"]);
    EXPECT_NE(gradients[0]["resource"], gradients[1]["resource"]);
}

} // namespace
