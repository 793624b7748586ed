// What the program says of its command line: help, manual pages, completions, and what it makes of misuse.
#include "tests/scenario/Player.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdlib>
#include <set>
#include <sys/wait.h>

namespace fs = std::filesystem;

namespace {

using testing::HasSubstr;
using testing::StartsWith;
using tests::contentOf;

struct Said {
    int exitCode = -1;
    std::string out;
    std::string err;
};

class SelfDescription : public testing::Test {
  protected:
    // Runs the program with words for the shell, and with variables for it before them.
    Said easel(const std::string& words, const std::string& variables = {}) const {
        const std::string command = "cd " + folder_.path().string() + " && " + variables +
                                    " '" EASEL_PROGRAM "' " + words + " >out 2>err";
        const int status = std::system(command.c_str());
        return {WIFEXITED(status) ? WEXITSTATUS(status) : -1, contentOf(folder_ / "out"),
                contentOf(folder_ / "err")};
    }

    tests::TemporaryFolder folder_;
};

TEST_F(SelfDescription, EachCommandThatHelpNamesHasAManualPage) {
    fs::create_directory(folder_ / "pages");
    const Said said = easel("manual pages");
    EXPECT_EQ(said.exitCode, 0) << said.err;
    std::set<std::string> pages;
    for (const auto& entry : fs::directory_iterator(folder_ / "pages"))
        pages.insert(entry.path().filename().string());
    EXPECT_EQ(pages,
              (std::set<std::string>{"easel.1", "easel-play.1", "easel-render.1", "easel-templates.1"}));
    EXPECT_THAT(contentOf(folder_ / "pages/easel-render.1"), StartsWith(".TH EASEL\\-RENDER 1 "));
    EXPECT_THAT(contentOf(folder_ / "pages/easel.1"), HasSubstr(".SH FILES\n"));
    const Said help = easel("--help");
    EXPECT_EQ(help.exitCode, 0);
    for (const char* command : {"\n  play ", "\n  render ", "\n  templates "})
        EXPECT_THAT(help.out, HasSubstr(command));
    EXPECT_THAT(help.out, testing::Not(HasSubstr("manual")));
}

TEST_F(SelfDescription, AFolderOfPagesThatIsNotThereIsNamed) {
    const Said said = easel("manual nowhere");
    EXPECT_EQ(said.exitCode, 2);
    EXPECT_THAT(said.err, HasSubstr("nowhere"));
    EXPECT_THAT(said.err, HasSubstr("No such file or directory"));
}

TEST_F(SelfDescription, CompletionsArePrintedForTheShellsThatThereAre) {
    EXPECT_THAT(easel("completion bash").out,
                HasSubstr("' templates') printf '%s\\n' list show export import"));
    EXPECT_THAT(easel("completion zsh").out, StartsWith("#compdef easel\n"));
    const Said other = easel("completion other");
    EXPECT_EQ(other.exitCode, 2);
    EXPECT_THAT(other.err, HasSubstr("other"));
}

TEST_F(SelfDescription, TheVersionIsSaid) {
    EXPECT_THAT(easel("--version").out, testing::MatchesRegex("easel [0-9]+\\.[0-9]+\\.[0-9]+\n"));
}

TEST_F(SelfDescription, AnOptionThatThereIsNotIsNamed) {
    const Said said = easel("--no-such-option");
    EXPECT_EQ(said.exitCode, 2);
    EXPECT_THAT(said.err, HasSubstr("--no-such-option"));
}

TEST_F(SelfDescription, WithoutADisplayItIsSaidWhatCanBeDoneWithoutOne) {
    for (const char* display : {"DISPLAY= WAYLAND_DISPLAY= QT_QPA_PLATFORM=",
                                "env -u DISPLAY -u WAYLAND_DISPLAY -u QT_QPA_PLATFORM"}) {
        const Said said = easel("", display);
        EXPECT_EQ(said.exitCode, 2);
        EXPECT_THAT(said.err, HasSubstr("neither DISPLAY nor WAYLAND_DISPLAY"));
        EXPECT_THAT(said.err, HasSubstr("play, render and templates"));
    }
}

} // namespace
