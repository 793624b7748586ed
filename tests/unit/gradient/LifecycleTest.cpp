// Starting up and shutting down, as far as no scenario can see it.
#include "Gradient/tool/Lifecycle.h"
#include "Gradient/tool/Tool.h"
#include "tests/unit/gradient/EditorStage.h"

#include <gmock/gmock.h>

namespace tests {
namespace {

TEST(Lifecycle, TheHooksForObjectKindsAskNothingOfTheHost) {
    IdleUser user;
    EditorStage stage(user);
    stage.process().journal().switchOn();
    InitGradientMethods();
    CleanupMethods();
    EXPECT_THAT(stage.process().journal().take(), testing::IsEmpty());
}

// Leaves something other than zeros where the next function keeps its variables.
__attribute__((noinline)) void dirtyTheStack() {
    volatile unsigned char bytes[4096];
    for (volatile unsigned char& byte : bytes)
        byte = 0xa5;
}

TEST(Lifecycle, EveryNamedMemberOfThePaletteElementIsSet) {
    IdleUser user;
    EditorStage stage(user);
    dirtyTheStack();
    InitTool();
    const PaletteElement& element = stage.process().palette().tools().front().element;
    EXPECT_EQ(element.icon, 5100);
    EXPECT_EQ(element.group, 0);
    EXPECT_EQ(element.position, 13);
    EXPECT_EQ(element.attributes, 2);
    EXPECT_EQ(element.available, 1);
}

} // namespace
} // namespace tests
