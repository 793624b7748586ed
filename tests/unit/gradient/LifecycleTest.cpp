// Starting up and shutting down, as far as no scenario can see it.
#include "Gradient/tool/Lifecycle.h"
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

} // namespace
} // namespace tests
