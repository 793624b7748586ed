// Registration of tools with the host.
#include "easel/runtime/ToolPalette.h"
#include "tests/support/HostTest.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using easel::runtime::SlotOwner;

class ToolPaletteTest : public tests::HostTest {
  protected:
    static short addTool() {
        short row = -1;
        short number = 0;
        EXPECT_EQ(AddTool(GetTPaletteFromWindowRef(roloPalette), PaletteElement{5100, 0, 13, 2, 1, {}}, row,
                          number),
                  0);
        return number;
    }
};

TEST_F(ToolPaletteTest, NumbersToolsFromOneInTheOrderTheyCome) {
    EXPECT_EQ(addTool(), 1);
    EXPECT_EQ(addTool(), 2);
    EXPECT_EQ(process_.palette().tools().size(), 2u);
    EXPECT_EQ(process_.palette().find(2)->element.icon, 5100);
    EXPECT_EQ(process_.palette().find(3), nullptr);
}

TEST_F(ToolPaletteTest, KnowsWhoFillsEachSlot) {
    const short number = addTool();
    ToolMethodRec& methods = GetTool(number).ToolMethods();
    methods.options = [] {};
    methods.slot3 = nullptr;
    const HostTool& tool = *process_.palette().find(number);
    for (int slot = 1; slot <= 8; ++slot)
        EXPECT_EQ(tool.slotOwner(slot), slot == 4   ? SlotOwner::Plugin
                                        : slot == 3 ? SlotOwner::None
                                                    : SlotOwner::Host)
            << slot;
}

TEST_F(ToolPaletteTest, KeepsFlagsAndNames) {
    const short number = addTool();
    GetTool(number).SetToolFlag(0, true);
    GetTool(number).SetToolFlag(5, true);
    GetTool(number).SetToolFlag(5, false);
    AddXTNLToolName(1024, number, CStr32(CStr255("Gradient")));
    const HostTool& tool = *process_.palette().find(number);
    EXPECT_THAT(tool.flags, testing::ElementsAre(short{0}));
    EXPECT_EQ(tool.name, "Gradient");
    EXPECT_EQ(tool.nameCode, 1024);
}

TEST_F(ToolPaletteTest, IgnoresNumbersThatNoToolHas) {
    GetTool(77).SetToolFlag(0, true);
    AddXTNLToolName(1024, -1, CStr32());
    EXPECT_TRUE(process_.palette().tools().empty());
}

TEST_F(ToolPaletteTest, TakesNoToolForAnotherWindow) {
    short row = 0;
    short number = 42;
    EXPECT_EQ(GetTPaletteFromWindowRef(nullptr), nullptr);
    EXPECT_NE(AddTool(nullptr, PaletteElement{}, row, number), 0);
    EXPECT_EQ(number, 42);
}

} // namespace
