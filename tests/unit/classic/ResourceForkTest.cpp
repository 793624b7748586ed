// Resource forks, whole and damaged.
#include "easel/classic/ResourceFork.h"
#include "tests/support/ErrorOf.h"

#include <gtest/gtest.h>
#include <random>

using namespace easel::classic;
using namespace easel::files;

namespace {

constexpr std::uint32_t kTemplate = fourCharacters("TMPL");
constexpr std::uint32_t kString = fourCharacters("STR ");

Bytes bytesOf(std::string_view text) {
    return {text.begin(), text.end()};
}

Resource resource(std::uint32_t type, std::int16_t id, std::string_view data,
                  std::optional<std::string> name = {}) {
    return {type, id, 0, std::move(name), bytesOf(data)};
}

// A file laid out by hand as other programs do: no reserved space, the map before the data, the name list
// between type list and references, and the later resource's data first.
Bytes handMadeFile() {
    Bytes file;
    const auto header = [&] {
        for (const std::uint32_t number : {108U, 16U, 17U, 92U})
            putNumber(file, number);
    };
    header();
    header();                             // 16: the map begins with a copy of the header
    putNumber(file, std::uint32_t{7});    // handle to the next map, meaningless in a file
    putNumber(file, std::uint16_t{3});    // reference number, likewise
    putNumber(file, std::uint16_t{0x80}); // attributes
    putNumber(file, std::uint16_t{28});   // the type list, from the map's start
    putNumber(file, std::uint16_t{52});   // the name list, likewise
    putNumber(file, std::uint16_t{1});    // 28: two types
    putBytes(file, bytesOf("STR "));
    putNumber(file, std::uint16_t{1});  // two of them
    putNumber(file, std::uint16_t{40}); // from the type list's start
    putBytes(file, bytesOf("TMPL"));
    putNumber(file, std::uint16_t{0});
    putNumber(file, std::uint16_t{28});
    file.resize(16 + 52 + 4);
    file.resize(16 + 52);
    putBytes(file, bytesOf("\x03"
                           "one")); // 52: the names
    const auto reference = [&](std::int16_t id, std::uint16_t name, std::uint32_t attributesAndOffset) {
        putNumber(file, static_cast<std::uint16_t>(id));
        putNumber(file, name);
        putNumber(file, attributesAndOffset);
        putNumber(file, std::uint32_t{0});
    };
    reference(0, 0xFFFF, 0x20000005U); // 56: 28 + 28
    reference(-1, 0, 0x00000000U);     // 68: 28 + 40
    reference(128, 0xFFFF, 0x0000000CU);
    putNumber(file, std::uint32_t{1}); // 108: the data
    putBytes(file, bytesOf("a"));
    putNumber(file, std::uint32_t{3});
    putBytes(file, bytesOf("abc"));
    putNumber(file, std::uint32_t{1});
    putBytes(file, bytesOf("z"));
    return file;
}

ResourceFork sample() {
    ResourceFork fork;
    fork.put(resource(kTemplate, 0, "gradient", ""));
    fork.put(resource(kString, -5, "", "named"));
    fork.put(resource(kTemplate, 7, std::string(1000, 'x')));
    return fork;
}

TEST(ResourceFork, WhatIsWrittenIsReadBack) {
    const auto fork = sample();
    const auto bytes = fork.write();
    ASSERT_TRUE(bytes);
    const auto read = ResourceFork::read(*bytes).value();
    ASSERT_EQ(read.resources().size(), 3U);
    for (const auto& each : fork.resources()) {
        const auto* const found = read.find(each.type, each.id);
        ASSERT_NE(found, nullptr);
        EXPECT_EQ(*found, each);
    }
}

TEST(ResourceFork, AResourceWithoutBytesIsReadBackWhereverItLies) {
    ResourceFork fork;
    fork.put(resource(kTemplate, 0, "gradient"));
    fork.put(resource(kTemplate, 1, ""));
    const auto read = ResourceFork::read(fork.write().value());
    ASSERT_TRUE(read);
    ASSERT_EQ(read->resources().size(), 2U);
    EXPECT_EQ(read->find(kTemplate, 1)->data, Bytes());
}

TEST(ResourceFork, TheClassicLayoutIsWrittenByteForByte) {
    ResourceFork fork;
    fork.put(resource(kTemplate, 0, "ab", ""));
    const auto bytes = *fork.write();
    Bytes expected;
    for (const std::uint32_t number : {256U, 262U, 6U, 51U})
        putNumber(expected, number);
    expected.resize(256);
    putBytes(expected, bytesOf(std::string_view("\0\0\0\2ab", 6)));
    for (const std::uint32_t number : {256U, 262U, 6U, 51U, 0U})
        putNumber(expected, number);
    for (const auto number : std::initializer_list<std::uint16_t>{0, 0, 28, 50, 0})
        putNumber(expected, number);
    putBytes(expected, bytesOf("TMPL"));
    // One of the type, its reference behind the type list; id 0, the name at 0, no attributes, the data at 0.
    for (const auto number : std::initializer_list<std::uint16_t>{0, 10, 0, 0, 0, 0, 0, 0})
        putNumber(expected, number);
    expected.push_back(0);
    EXPECT_EQ(bytes, expected);
}

TEST(ResourceFork, FilesInAnotherOrderAreRead) {
    const auto read = ResourceFork::read(handMadeFile());
    ASSERT_TRUE(read) << describe(read.error());
    const auto& resources = read.value().resources();
    ASSERT_EQ(resources.size(), 3U);
    EXPECT_EQ(resources[0], resource(kString, -1, "a", "one"));
    EXPECT_EQ(resources[1], resource(kString, 128, "z"));
    EXPECT_EQ(resources[2].data, bytesOf("abc"));
    EXPECT_EQ(resources[2].attributes, 0x20);
    EXPECT_EQ(resources[2].name, std::nullopt);
}

TEST(ResourceFork, NoBytesAreAForkWithoutResourcesAndSoIsAnEmptyMap) {
    EXPECT_TRUE(ResourceFork::read({}).value().resources().empty());
    const auto bytes = ResourceFork().write();
    ASSERT_TRUE(bytes);
    EXPECT_EQ(bytes->size(), 256U + 30U);
    EXPECT_TRUE(ResourceFork::read(*bytes).value().resources().empty());
}

TEST(ResourceFork, WhatSystemAndApplicationKeepInTheHeaderIsCarriedAlong) {
    ResourceFork fork;
    fork.put(resource(kTemplate, 0, "gradient", "name"));
    auto bytes = *fork.write();
    for (std::size_t i = 16; i < 256; ++i)
        bytes[i] = static_cast<std::uint8_t>(i * 7);
    const auto mapOffset = numberAt<std::uint32_t>(bytes, 4);
    setNumber(bytes, mapOffset + 22, std::uint16_t{0x0180});
    EXPECT_EQ(ResourceFork::read(bytes).value().write(), bytes);
}

TEST(ResourceFork, PuttingReplacesTheResourceOfThatTypeAndId) {
    auto fork = sample();
    fork.put(resource(kTemplate, 7, "new"));
    EXPECT_EQ(fork.resources().size(), 3U);
    EXPECT_EQ(fork.find(kTemplate, 7)->data, bytesOf("new"));
    fork.remove(kTemplate, 7);
    EXPECT_EQ(fork.find(kTemplate, 7), nullptr);
    EXPECT_EQ(fork.find(kString, 7), nullptr);
}

TEST(ResourceFork, EveryTruncationIsRefused) {
    for (const auto& whole : {*sample().write(), handMadeFile()})
        for (std::size_t size = 1; size < whole.size(); ++size)
            EXPECT_FALSE(ResourceFork::read(ByteView(whole).first(size))) << size;
}

TEST(ResourceFork, EveryKindOfDamageIsNamed) {
    const auto whole = *sample().write();
    const auto map = numberAt<std::uint32_t>(whole, 4);
    const auto damageWhen = [&](std::size_t offset, auto value) {
        auto bytes = whole;
        setNumber(bytes, offset, value);
        return tests::errorOf(ResourceFork::read(bytes));
    };
    EXPECT_EQ(damageWhen(0, std::uint32_t{0xFFFFFFF0}), ForkDamage::DataOutside);
    EXPECT_EQ(damageWhen(4, std::uint32_t{0xFFFFFFFF}), ForkDamage::MapOutside);
    EXPECT_EQ(damageWhen(map + 24, std::uint16_t{0xFFFF}), ForkDamage::ListOutside);
    EXPECT_EQ(damageWhen(map + 28, std::uint16_t{0x7FFF}), ForkDamage::ListOutside);
    EXPECT_EQ(damageWhen(map + 34, std::uint16_t{0x7FFF}), ForkDamage::ListOutside);
    EXPECT_EQ(damageWhen(map + 26, std::uint16_t{0xFFF0}), ForkDamage::NameOutside);
    EXPECT_EQ(damageWhen(256, std::uint32_t{0x7FFFFFFF}), ForkDamage::ResourceOutside);
    EXPECT_EQ(damageWhen(256, std::uint32_t{500}), ForkDamage::ResourcesOverlap);
}

TEST(ResourceFork, AListThatEndsBeyondTheMapIsDamage) {
    // The map takes the bytes from 16 to 108, its type list begins at 44, and TMPL has one reference of 12
    // bytes.
    constexpr std::size_t kOffsetOfTemplates = 60;
    auto bytes = handMadeFile();
    setNumber(bytes, kOffsetOfTemplates, std::uint16_t{108 - 44 - 11});
    EXPECT_EQ(tests::errorOf(ResourceFork::read(bytes)), ForkDamage::ListOutside)
        << "its last byte is outside";
    setNumber(bytes, kOffsetOfTemplates, std::uint16_t{108 - 44 + 1});
    EXPECT_EQ(tests::errorOf(ResourceFork::read(bytes)), ForkDamage::ListOutside) << "all of it is outside";
}

TEST(ResourceFork, AMapThatIsCutShortIsToldFromOneThatLacksItsList) {
    auto bytes = *ResourceFork().write();
    setNumber(bytes, 12, std::uint32_t{28});
    EXPECT_EQ(tests::errorOf(ResourceFork::read(bytes)), ForkDamage::ListOutside);
    setNumber(bytes, 12, std::uint32_t{27});
    EXPECT_EQ(tests::errorOf(ResourceFork::read(bytes)), ForkDamage::MapOutside);
}

// Two types with one list of so many references to empty resources. The map is as small as that can be.
Bytes fileWithSharedReferences(std::uint16_t references) {
    const std::uint32_t dataSize = 2U * 4U * references;
    const std::uint32_t mapSize = 28U + 2U + 2U * 8U + 12U * references;
    Bytes file;
    for (const std::uint32_t number : {16U, 16U + dataSize, dataSize, mapSize})
        putNumber(file, number);
    file.resize(file.size() + dataSize + 24);
    putNumber(file, std::uint16_t{28});
    putNumber(file, static_cast<std::uint16_t>(mapSize));
    putNumber(file, std::uint16_t{1}); // two types
    for (const std::uint32_t type : {kString, kTemplate}) {
        putNumber(file, type);
        putNumber(file, static_cast<std::uint16_t>(references - 1));
        putNumber(file, std::uint16_t{18}); // both lists are the one behind the types
    }
    for (std::uint16_t id = 0; id < references; ++id) {
        putNumber(file, id);
        putNumber(file, std::uint16_t{0xFFFF});
        putNumber(file, std::uint32_t{4U * id});
        putNumber(file, std::uint32_t{0});
    }
    return file;
}

TEST(ResourceFork, TypesMayShareReferencesAsLongAsTheMapWouldHaveRoomForAllOfThem) {
    // References take 12 bytes: 82 bytes of a map have room for 6, and 94 for 7.
    const auto fork = ResourceFork::read(fileWithSharedReferences(3));
    ASSERT_TRUE(fork);
    EXPECT_EQ(fork->resources().size(), 6U);
    EXPECT_EQ(tests::errorOf(ResourceFork::read(fileWithSharedReferences(4))), ForkDamage::ListOutside);
}

TEST(ResourceFork, RandomDamageNeverReadsOutOfBounds) {
    std::mt19937 random(7);
    const auto whole = *sample().write();
    for (int i = 0; i < 20'000; ++i) {
        auto bytes = whole;
        for (int hits = 0; hits < 3; ++hits) {
            // Most of the structure is in the header and the map.
            const auto at = random() % 2 ? random() % 16 : bytes.size() - 1 - random() % 100;
            bytes[at] = static_cast<std::uint8_t>(random());
        }
        const auto fork = ResourceFork::read(bytes);
        if (fork) {
            EXPECT_LE(fork->resources().size(), 12U);
        }
    }
}

TEST(ResourceFork, WhatTheLayoutHasNoRoomForIsNotWritten) {
    ResourceFork names;
    names.put(resource(kString, 0, "", std::string(256, 'n')));
    EXPECT_EQ(names.write(), std::nullopt);
    // The place of a name is a number below 65535, which stands for none.
    ResourceFork named;
    for (std::int16_t id = 0; id < 255; ++id)
        named.put(resource(kString, id, "", std::string(255, 'n')));
    named.put(resource(kString, 255, "", std::string(253, 'n')));
    ResourceFork tooManyNames = named;
    named.put(resource(kString, 256, "", "last"));
    const auto read = ResourceFork::read(named.write().value());
    EXPECT_EQ(read->find(kString, 256)->name, "last");
    tooManyNames.put(resource(kString, 255, "", std::string(254, 'n')));
    tooManyNames.put(resource(kString, 256, "", "last"));
    EXPECT_EQ(tooManyNames.write(), std::nullopt);
}

TEST(ResourceFork, AsMuchIsWrittenAsTheLayoutHasRoomFor) {
    // The map has 16 bits for the place of its names, which begin behind 38 bytes and 12 for each resource.
    constexpr std::int16_t kMostOfOneType = (65535 - 38) / 12;
    ResourceFork many;
    for (std::int16_t id = 0; id < kMostOfOneType; ++id)
        many.put(resource(kString, id, ""));
    EXPECT_EQ(ResourceFork::read(many.write().value())->resources().size(), std::size_t{kMostOfOneType});
    many.put(resource(kString, kMostOfOneType, ""));
    EXPECT_EQ(many.write(), std::nullopt);
    // A resource begins at a place of 24 bits, behind the four bytes with the length of the one before.
    for (const std::size_t place : {0xFFFFFFU, 0x1000000U}) {
        ResourceFork large;
        large.put(resource(kString, 0, std::string(place - 4, 'x')));
        large.put(resource(kString, 1, ""));
        EXPECT_EQ(large.write().has_value(), place == 0xFFFFFF);
    }
}

} // namespace
