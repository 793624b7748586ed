// The calls of the interface on files and what is kept in them.
#include "host/Defaults.h"
#include "host/Files.h"
#include "host/Gradient.h"
#include "tests/support/HostTest.h"
#include "tests/support/IdleUser.h"

#include <gmock/gmock.h>

#include <cstdint>

namespace tests {
namespace {

constexpr OSType kType = FourCC("GTMP");
constexpr OSType kCreator = FourCC("*Kst");
constexpr OSType kResource = FourCC("GRDT");
// The classic numbers of errors.
constexpr OSErr kNoSuchVolume = -35;
constexpr OSErr kBadName = -37;
constexpr OSErr kNoSuchFolder = -120;

class FileCallsTest : public HostTest {
  protected:
    FileCallsTest() {
        const FSSpec preferences = FindSecondaryPreferencesFolder("Templates", true);
        EXPECT_EQ(FSMakeFSSpec(preferences.vRefNum, preferences.parID, ":Templates:JUNK", &place_),
                  kFileNotFoundErr);
    }

    FSSpec specOf(const char* name) const {
        FSSpec spec{};
        FSMakeFSSpec(place_.vRefNum, place_.parID, name, &spec);
        return spec;
    }
    // Makes a file of that type with one resource in it.
    void save(const char* name, const std::string& content, OSType type = kType) {
        const FSSpec spec = specOf(name);
        FSpCreateResFile(&spec, kCreator, type, 0);
        const short file = FSpOpenResFile(&spec, kWritePermission);
        EXPECT_NE(file, -1);
        const Handle data = NewHandle(static_cast<long>(content.size()));
        std::copy(content.begin(), content.end(), *data);
        AddResource(data, kResource, 0, "");
        DisposeHandle(data);
        CloseResFile(file);
    }
    std::string current() {
        const Handle data = GetResource(kResource, 0);
        return data ? std::string(*data, static_cast<std::size_t>(GetHandleSize(data))) : "none";
    }
    std::vector<std::string> listed(OSType type) const {
        const Handle list = NewHandle(0);
        EnumerShell(place_.vRefNum, place_.parID, type, reinterpret_cast<FSSpec**>(list));
        std::vector<std::string> names;
        for (long at = 0; at < GetHandleSize(list); at += static_cast<long>(sizeof(FSSpec))) {
            FSSpec spec{};
            std::copy_n(*list + at, sizeof spec, reinterpret_cast<char*>(&spec));
            names.emplace_back(reinterpret_cast<const char*>(spec.name + 1), spec.name[0]);
        }
        DisposeHandle(list);
        return names;
    }

    IdleUser user_;
    easel::runtime::UserScope inFront_{process_, user_};
    FSSpec place_{};
};

TEST_F(FileCallsTest, AFileIsFoundOnceItIsMadeAndUntilItIsDeleted) {
    save("a", "x");
    FSSpec spec{};
    EXPECT_EQ(FSMakeFSSpec(place_.vRefNum, place_.parID, "a", &spec), kNoErr);
    EXPECT_EQ(spec.name[0], 1);
    EXPECT_EQ(FSpDelete(&spec), kNoErr);
    EXPECT_EQ(FSMakeFSSpec(place_.vRefNum, place_.parID, "a", &spec), kFileNotFoundErr);
    EXPECT_EQ(FSpDelete(&spec), kFileNotFoundErr);
}

TEST_F(FileCallsTest, APlaceThatIsNoneHasItsErrorAndLeavesTheRecordAlone) {
    FSSpec spec = specOf("before");
    EXPECT_EQ(FSMakeFSSpec(7, place_.parID, "a", &spec), kNoSuchVolume);
    EXPECT_EQ(FSMakeFSSpec(place_.vRefNum, 99, "a", &spec), kNoSuchFolder);
    EXPECT_EQ(FSMakeFSSpec(place_.vRefNum, place_.parID, "a:b", &spec), kBadName);
    EXPECT_EQ(spec.name[0], 6);
    EXPECT_EQ(std::int32_t{spec.parID}, std::int32_t{place_.parID});
}

TEST_F(FileCallsTest, ResourcesAreThoseOfTheFileThatIsUsed) {
    save("a", "of a");
    save("b", "of b");
    const FSSpec a = specOf("a");
    const FSSpec b = specOf("b");
    const short below = CurResFile();
    const short first = FSpOpenResFile(&a, kReadPermission);
    const short second = FSpOpenResFile(&b, kReadPermission);
    EXPECT_EQ(CurResFile(), second);
    EXPECT_EQ(current(), "of b");
    UseResFile(first);
    EXPECT_EQ(CurResFile(), first);
    EXPECT_EQ(current(), "of a");
    CloseResFile(first);
    EXPECT_EQ(CurResFile(), below);
    EXPECT_EQ(current(), "none");
    CloseResFile(second);
}

TEST_F(FileCallsTest, AFileThatIsOpenForReadingTakesNoResource) {
    save("a", "old");
    const FSSpec a = specOf("a");
    const short file = FSpOpenResFile(&a, kReadPermission);
    const Handle data = NewHandle(3);
    AddResource(data, kResource, 0, "");
    DisposeHandle(data);
    CloseResFile(file);
    const short again = FSpOpenResFile(&a, kReadPermission);
    EXPECT_EQ(current(), "old");
    CloseResFile(again);
}

TEST_F(FileCallsTest, AFolderIsListedByType) {
    save("b", "x");
    save("a", "x");
    save("c", "x", FourCC("TEXT"));
    EXPECT_THAT(listed(kType), testing::ElementsAre("a", "b"));
    EXPECT_THAT(listed(FourCC("TEXT")), testing::ElementsAre("c"));
    EXPECT_THAT(listed(FourCC("none")), testing::IsEmpty());
    save("d", "x");
    EXPECT_THAT(listed(kType), testing::ElementsAre("a", "b", "d"));
}

TEST_F(FileCallsTest, DefaultsAreReadAsTheyWereSetLast) {
    EXPECT_EQ(GetDefaultsResource(kResource, 128), nullptr);
    for (const char letter : {'x', 'y'}) {
        const Handle data = NewHandle(1);
        **data = letter;
        SetDefaultsResource(data, kResource, 128, "name");
        DisposeHandle(data);
    }
    SetDefaultsResource(nullptr, kResource, 128, "name");
    const Handle read = GetDefaultsResource(kResource, 128);
    ASSERT_NE(read, nullptr);
    EXPECT_EQ(GetHandleSize(read), 1);
    EXPECT_EQ(**read, 'y');
    EXPECT_EQ(GetDefaultsResource(kResource, 129), nullptr);
    EXPECT_EQ(GetDefaultsResource(kType, 128), nullptr);
    DisposeHandle(read);
}

TEST_F(FileCallsTest, BytesThatAreNoneHoldNoGradient) {
    CGradientData gradient;
    gradient.SetAngle(33);
    const Handle bytes = MakeGradientData(gradient);
    const long size = GetHandleSize(bytes);
    CGradientData read;
    EXPECT_FALSE(ExtractGradientInfo(nullptr, size, read));
    EXPECT_FALSE(ExtractGradientInfo(*bytes, -1, read));
    EXPECT_FALSE(ExtractGradientInfo(*bytes, size - 1, read));
    EXPECT_EQ(read.Angle(), 0);
    EXPECT_TRUE(ExtractGradientInfo(*bytes, size, read));
    EXPECT_EQ(read.Angle(), 33);
    DisposeHandle(bytes);
    gradient.ColorList().clear();
    EXPECT_EQ(MakeGradientData(gradient), nullptr);
}

} // namespace
} // namespace tests
