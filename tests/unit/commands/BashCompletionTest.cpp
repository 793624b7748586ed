// The completion script for bash, completing words in a shell.
#include "easel/commands/Completions.h"
#include "tests/support/TemporaryFolder.h"
#include "tests/unit/commands/SampleProgram.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <sstream>

using testing::ElementsAre;
using testing::IsEmpty;
using testing::UnorderedElementsAre;

namespace {

// A folder with a few files, in which words are completed.
class BashCompletion : public testing::Test {
  protected:
    BashCompletion() {
        tests::writeContent(folder_ / "script", easel::commands::bashCompletion(tests::sampleProgram()));
        for (const char* file : {"here/flower.svg", "here/flower.png", "here/flowers/note.txt"})
            tests::writeContent(folder_ / file, "");
        // The program, as far as the script asks it for something.
        tests::writeContent(folder_ / "bin/easel",
                            "#!/bin/sh\n[ \"$*\" = 'templates list' ] && echo 'Deep Sea' && echo Dawn\n");
        std::filesystem::permissions(folder_ / "bin/easel", std::filesystem::perms::owner_all);
    }

    // What is offered for the last of the words, which are given as the shell reads them.
    std::vector<std::string> offered(const std::string& words) const {
        const std::string folder = folder_.path().string();
        const std::string command =
            "cd " + folder + "/here && PATH=" + folder +
            "/bin:$PATH bash --norc -c '. ../script; COMP_WORDS=(" + words +
            "); COMP_CWORD=$((${#COMP_WORDS[@]} - 1)); _easel; printf \"%s\\n\" \"${COMPREPLY[@]}\"' >../out";
        EXPECT_EQ(std::system(command.c_str()), 0) << command;
        std::vector<std::string> found;
        std::istringstream lines(tests::contentOf(folder_ / "out"));
        for (std::string line; std::getline(lines, line);)
            if (!line.empty())
                found.push_back(line);
        return found;
    }

    tests::TemporaryFolder folder_;
};

TEST_F(BashCompletion, OffersTheCommandsAndThenThoseBelowThem) {
    EXPECT_THAT(offered("easel ren"), ElementsAre("render"));
    EXPECT_THAT(offered("easel templates \"\""), UnorderedElementsAre("list", "show"));
}

TEST_F(BashCompletion, OffersTheOptionsOfTheCommandThatWasNamed) {
    EXPECT_THAT(offered("easel -"), ElementsAre("--help"));
    EXPECT_THAT(offered("easel render in.svg -"), UnorderedElementsAre("-w", "--width", "--plain"));
    EXPECT_THAT(offered("easel templates list -"), IsEmpty());
}

TEST_F(BashCompletion, OffersDrawingsPicturesAndFoldersWhereTheyAreExpected) {
    EXPECT_THAT(offered("easel render fl"), UnorderedElementsAre("flower.svg", "flowers"));
    EXPECT_THAT(offered("easel render a.svg fl"),
                UnorderedElementsAre("flower.svg", "flower.png", "flowers"));
    EXPECT_THAT(offered("easel templates show --to fl"), ElementsAre("flowers"));
    EXPECT_THAT(offered("easel render --width fl"), IsEmpty()) << "nobody knows numbers";
}

TEST_F(BashCompletion, WhatMayBeRepeatedIsOfferedEachTime) {
    EXPECT_THAT(offered("easel one.svg flower.s"), ElementsAre("flower.svg"));
}

TEST_F(BashCompletion, OffersTheNamesOfTemplatesThatHaveSpaces) {
    EXPECT_THAT(offered("easel templates show D"), UnorderedElementsAre("Deep Sea", "Dawn"));
    EXPECT_THAT(offered("easel templates show --to x De"), ElementsAre("Deep Sea"));
}

} // namespace
