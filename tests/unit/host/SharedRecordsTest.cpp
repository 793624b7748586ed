// What a host and a module that were compiled apart have to agree on: numbers, sizes and first values.
#include "host/Dialogs.h"
#include "host/Drawing.h"
#include "host/Files.h"
#include "host/Gradient.h"
#include "host/Mouse.h"
#include "host/Objects.h"
#include "host/Palette.h"
#include "host/Strings.h"
#include "host/TypeCodes.h"
#include "host/Windows.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <cstdint>
#include <type_traits>

TEST(HostNumbers, AreThoseOfTheInterface) {
    EXPECT_EQ(kNoErr, 0);
    EXPECT_EQ(kFileNotFoundErr, -43);
    EXPECT_EQ(kReadPermission, 1);
    EXPECT_EQ(kWritePermission, 2);
    EXPECT_EQ(kPatternCopy, 8);
    EXPECT_EQ(kPatternXor, 10);
    EXPECT_EQ(NorvU::kShiftKey, 56);
    EXPECT_EQ(NorvU::kOptionKey, 58);
    EXPECT_EQ(kLinearGradient, 1);
    EXPECT_EQ(kRadialGradient, 2);
    EXPECT_EQ(kCFStringEncodingMacRoman, 0u);
    EXPECT_EQ(InFrontOfAllWindows(),
              reinterpret_cast<OpaqueWindowPtr*>(std::intptr_t{-1})); // NOLINT(performance-no-int-to-ptr)
}

TEST(HostNumbers, OfFourLettersHaveTheFirstOneHighest) {
    EXPECT_EQ(FourCC("ABCD"), 0x41424344u);
    EXPECT_EQ(FourCC("\xff\x80\x01\x7f"), 0xff80017fu);
    EXPECT_EQ(kControlPopupButtonMenuHandleTag, 0x6d68616eu);
    EXPECT_EQ(kOKCommand, 0x6f6b2020u);
    EXPECT_EQ(kCancelCommand, 0x6e6f7421u);
}

TEST(HostRecords, HaveTheSizesThatModulesWereCompiledWith) {
    EXPECT_EQ(sizeof(Pattern), 8u);
    EXPECT_EQ(sizeof(SelDescrimT), 32u);
    EXPECT_EQ(sizeof(FSSpec), 70u);
    EXPECT_EQ(sizeof(FSSpec::name), 64u);
    EXPECT_EQ(sizeof(ToolMethodRec), 8 * sizeof(void*));
    EXPECT_EQ(sizeof(PaletteElement::hostData), 4 * sizeof(std::int16_t));
    // A capacity, a length, 255 bytes of text and a zero.
    EXPECT_EQ(sizeof(CStr255), 258u);
    EXPECT_EQ(sizeof(CStr32), 258u);
    using Rows = std::remove_cvref_t<decltype(std::declval<const CPatRecord&>().Rows())>;
    EXPECT_EQ(sizeof(Rows), 8u);
}

TEST(HostRecords, BeginWithZeroes) {
    EXPECT_EQ(RGBColor(), (RGBColor{0, 0, 0}));
    const EventRecord event;
    EXPECT_EQ(event.what, 0);
    EXPECT_EQ(event.message, 0u);
    EXPECT_EQ(event.when, 0u);
    EXPECT_EQ(event.where, TPoint<short>(0, 0));
    EXPECT_EQ(event.modifiers, 0);
    const HICommandExtended command;
    EXPECT_EQ(command.attributes, 0u);
    EXPECT_EQ(command.commandID, 0u);
    EXPECT_EQ(SelDescrimT(), (SelDescrimT{{0, 0, 0, 0, 0, 0, 0, 0}}));
}

TEST(HostPen, CopiesWithAPatternThatHasNoBitsUntilItIsSet) {
    const PenState pen;
    EXPECT_EQ(pen.mode, 8);
    EXPECT_EQ(pen.location, TPoint<short>(0, 0));
    EXPECT_EQ(pen.size, TPoint<short>(0, 0));
    for (const std::uint8_t row : pen.pattern.pat)
        EXPECT_EQ(row, 0);
}

TEST(HostValueChanger, SetsAValueUntilItGoes) {
    int value = 3;
    {
        const StValueChanger changer(value, 8);
        EXPECT_EQ(value, 8);
    }
    EXPECT_EQ(value, 3);
}
