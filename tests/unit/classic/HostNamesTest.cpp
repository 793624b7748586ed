// Names between the disk and the host.
#include "easel/classic/HostNames.h"
#include "easel/classic/MacRoman.h"

#include <gtest/gtest.h>

using namespace easel::classic;

namespace {

std::string mac(std::string_view utf8) {
    return toMacRoman(utf8).value();
}

TEST(HostNames, ASlashIsALetterAndBecomesAColonOnDisk) {
    EXPECT_EQ(nameOnDisk("a/b.GRD"), "a:b.GRD");
    EXPECT_EQ(nameInHost("a:b.GRD"), "a/b.GRD");
}

TEST(HostNames, OrdinaryNamesStayAsTheyAre) {
    for (const char* name :
         {"Sunset.GRD", ".hidden.GRD", "con.GRD", "...GRD", "a b;(c.GRD", "CON", "-rf", "~", "$HOME", "a\nb"})
        EXPECT_EQ(nameOnDisk(name), name);
}

TEST(HostNames, OfANameThatNamesNoFileItIsSaidWhy) {
    EXPECT_EQ(whyNoFile("a:b"), "the name of a file cannot hold ':'");
    EXPECT_EQ(whyNoFile("._:"), "the name of a file cannot hold ':'");
    EXPECT_EQ(whyNoFile("._a"), "the name of a file cannot begin with '._'");
    EXPECT_EQ(whyNoFile(std::string(64, 'a')), "it cannot be the name of a file");
}

TEST(HostNames, NamesOnDiskAreComposed) {
    EXPECT_EQ(nameOnDisk(mac("Cafe\u0301")), "Caf\u00E9");
    EXPECT_EQ(nameInHost("Cafe\u0301"), mac("Caf\u00E9"));
    EXPECT_EQ(nameInHost("Caf\u00E9"), mac("Caf\u00E9"));
}

TEST(HostNames, TwentyWideLettersWithTheirEndingFit) {
    const auto wide =
        mac(std::string("\u2122") + "\u2122\u2122\u2122\u2122\u2122\u2122\u2122\u2122\u2122"
                                    "\u2122\u2122\u2122\u2122\u2122\u2122\u2122\u2122\u2122\u2122") +
        ".GRD";
    ASSERT_EQ(wide.size(), 24U);
    const auto disk = nameOnDisk(wide);
    ASSERT_TRUE(disk);
    EXPECT_EQ(disk->size(), 64U);
    EXPECT_EQ(nameInHost(*disk), wide);
}

TEST(HostNames, WhatCouldLeadElsewhereOrIsReservedNamesNoFile) {
    const std::string_view names[] = {"",   ".",   "..",           ":",  "a:b",
                                      ":x", "::x", "._Sunset.GRD", "._", ".easel-save-0123456789abcdef~"};
    for (const auto name : names)
        EXPECT_EQ(nameOnDisk(name), std::nullopt) << name;
    EXPECT_EQ(nameOnDisk(std::string_view("a\0b", 3)), std::nullopt);
    EXPECT_EQ(nameOnDisk(std::string(64, 'x')), std::nullopt);
    EXPECT_TRUE(nameOnDisk(std::string(63, 'x')));
}

TEST(HostNames, DiskNamesThatTheHostCannotHoldHaveNoHostName) {
    for (const char* name :
         {"\u65E5\u672C.GRD", "\xFF.GRD", "._x", ".", "..", ".easel-save-0123456789abcdef~"})
        EXPECT_EQ(nameInHost(name), std::nullopt) << name;
    EXPECT_EQ(nameInHost(std::string(64, 'x')), std::nullopt);
    EXPECT_EQ(nameInHost(std::string(63, 'x')), std::string(63, 'x'));
}

} // namespace
