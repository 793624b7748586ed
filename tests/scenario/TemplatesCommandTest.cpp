// `easel templates`: the user's templates on the command line.
#include "tests/scenario/Templates.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using namespace tests;
using testing::HasSubstr;
namespace fs = std::filesystem;
namespace classic = easel::classic;

namespace {

struct Ran {
    int exitCode = -1;
    std::string out;
    std::string err;
};

class TemplatesCommand : public testing::Test {
  protected:
    // The arguments are plain words, or quoted for the shell.
    Ran run(const std::string& arguments) const {
        const auto file = [&](const char* name) {
            std::string quoted(1, '\'');
            return quoted.append((player_.folder() / name).string()).append("'");
        };
        std::string command = "cd ";
        command.append(file("")).append(" && XDG_DATA_HOME=").append(file("data"));
        command.append(" '" EASEL_PROGRAM "' templates ").append(arguments).append(" --prefs preferences");
        command.append(" >").append(file(".out")).append(" 2>").append(file(".err"));
        const int status = std::system(command.c_str());
        return {WIFEXITED(status) ? WEXITSTATUS(status) : -1, contentOf(player_.folder() / ".out"),
                contentOf(player_.folder() / ".err")};
    }
    void saveThreeStops(const std::string& name) const {
        dropTemplate(player_, name + ".GRD", *classic::gradientToBytes(threeStopGradient()));
    }

    Player player_;
};

TEST_F(TemplatesCommand, ListsTemplatesByNameInThePopupsOrder) {
    saveThreeStops("zebra");
    saveThreeStops("Apple");
    dropTemplate(player_, "other.GRD", {}, classic::fourCharacters("TEXT"));
    const auto ran = run("list");
    EXPECT_EQ(ran.exitCode, 0);
    EXPECT_EQ(ran.out, "Apple\nzebra\n");
    EXPECT_EQ(ran.err, "");
}

TEST_F(TemplatesCommand, AddsTheStartersAndLeavesTemplatesOfTheUserAlone) {
    saveThreeStops("Gold");
    const auto ran = run("starter");
    EXPECT_EQ(ran.exitCode, 0) << ran.err;
    EXPECT_EQ(std::count(ran.out.begin(), ran.out.end(), '\n'), 11);
    EXPECT_THAT(ran.out, testing::Not(HasSubstr("Gold")));
    EXPECT_THAT(run("show Gold").out, HasSubstr("stop    25 %  #ff0000"));
    // The first color of a sky is above.
    EXPECT_THAT(run("show 'Clear Sky'").out, HasSubstr("angle   -90 degrees\nstop    0 %  #1d5fb4"));
    EXPECT_EQ(run("starter").out, "");
}

TEST_F(TemplatesCommand, ShowsTheStopsWithOrWithoutTheEndingAndMakesAPicture) {
    saveThreeStops("Sunset");
    const auto ran = run("show Sunset --picture s.png");
    EXPECT_EQ(ran.exitCode, 0) << ran.err;
    EXPECT_EQ(ran.out, "name    Sunset\nkind    linear\nangle   0 degrees\nstop    0 %  #000000\n"
                       "stop    25 %  #ff0000\nstop    100 %  #ffffff\n");
    EXPECT_EQ(run("show Sunset.GRD").out, ran.out);
    EXPECT_TRUE(contentOf(player_.folder() / "s.png").starts_with("\x89PNG"));
}

TEST_F(TemplatesCommand, EveryFormatThatHoldsTheWholeGradientBringsItBackByteForByte) {
    auto gradient = threeStopGradient();
    gradient.SetType(kRadialGradient);
    gradient.SetStart({0.25, 0.5});
    gradient.SetEnd({0.25, 0.5});
    const auto bytes = *classic::gradientToBytes(gradient);
    dropTemplate(player_, "Sunset.GRD", bytes);
    for (const std::string ending : {"GRD", "bin", "svg", "css"}) {
        EXPECT_EQ(run("export Sunset out." + ending).exitCode, 0) << ending;
        const auto ran = run("import out." + ending + " --name Back");
        EXPECT_EQ(ran.exitCode, 0) << ending << ran.err;
        EXPECT_EQ(storedIn(templateFolder(player_), "Back.GRD"), bytes) << ending;
        EXPECT_EQ(ran.err, "") << ending;
    }
}

TEST_F(TemplatesCommand, ImportTakesSeveralFilesNamesThemAfterTheirsAndSaysWhatIsLost) {
    writeContent(player_.folder() / "one.css", "linear-gradient(red, rgb(0 0 0 / 0.5))");
    writeContent(player_.folder() / "two.ggr", "GIMP Gradient\n1\n0 0.5 1 0 0 0 1 1 1 1 1 0 0\n");
    writeContent(player_.folder() / "bad.ggr", "not a gradient");
    const auto ran = run("import one.css bad.ggr two.ggr none.css");
    EXPECT_EQ(ran.exitCode, 2);
    EXPECT_EQ(ran.out, "one.css: saved as one\ntwo.ggr: saved as two\n");
    EXPECT_THAT(ran.err, HasSubstr("one.css: its opacity is left out"));
    EXPECT_THAT(ran.err, HasSubstr("bad.ggr: it is no GIMP gradient"));
    EXPECT_THAT(ran.err, HasSubstr("none.css: No such file or directory"));
    EXPECT_EQ(run("list").out, "one\ntwo\n");
}

TEST_F(TemplatesCommand, ImportTakesAGradientFromAnSvgFileThatHasNoShapes) {
    writeContent(player_.folder() / "alone.svg",
                 "<s:svg xmlns:s='http://www.w3.org/2000/svg'><s:defs><s:linearGradient id='empty'/>"
                 "<s:radialGradient id='g' cx='.25' cy='.75'><s:stop offset='0' stop-color='red'/>"
                 "<s:stop offset='1' stop-color='blue'/></s:radialGradient></s:defs></s:svg>");
    writeContent(player_.folder() / "none.svg", "<svg xmlns='http://www.w3.org/2000/svg'/>");
    const auto ran = run("import alone.svg --name Alone");
    EXPECT_EQ(ran.exitCode, 0) << ran.err;
    EXPECT_THAT(ran.err, HasSubstr("no shape has it"));
    EXPECT_THAT(run("show Alone").out, HasSubstr("kind    radial\nstart   0.25 0.75\nend     0.25 0.75\n"));
    EXPECT_THAT(run("import none.svg").err, HasSubstr("none.svg: there is no gradient in it"));
}

TEST_F(TemplatesCommand, AnImportedTemplateIsLoadedByTheEditor) {
    writeContent(player_.folder() / "one.css", "linear-gradient(90deg, red, lime 25%, blue)");
    EXPECT_EQ(run("import one.css --name 'Caf\u00E9 1'").exitCode, 0);
    const auto played = player_.playToEnd(inEditor("print dialog\nchoose 9 5\n") +
                                          "add rect r 0 0 9 9\nclick 5 5\nprint object r\n");
    EXPECT_THAT(offered(played["dialog"]), testing::ElementsAre("Caf\u00E9 1.GRD"));
    EXPECT_EQ(played.answers.back()["gradient"]["stops"],
              nlohmann::json({{0.0, 65535, 0, 0}, {0.25, 0, 65535, 0}, {1.0, 0, 0, 65535}}));
}

TEST_F(TemplatesCommand, WhatIsReplacedOrDeletedLiesInTheTrash) {
    saveThreeStops("Sunset");
    writeContent(player_.folder() / "Sunset.css", "linear-gradient(red, blue)");
    EXPECT_THAT(run("import Sunset.css").out, HasSubstr("in the trash"));
    EXPECT_EQ(stopsStoredIn(templateFolder(player_), "Sunset.GRD"), 2U);
    EXPECT_EQ(run("delete Sunset").exitCode, 0);
    EXPECT_EQ(stopsStoredIn(player_.folder() / "data/Trash/files", "Sunset.GRD"), 3U);
    EXPECT_EQ(stopsStoredIn(player_.folder() / "data/Trash/files", "Sunset.2.GRD"), 2U);
    EXPECT_EQ(run("list").out, "");
}

TEST_F(TemplatesCommand, ErrorsNameTheFileAndTheReason) {
    saveThreeStops("Sunset");
    const std::pair<const char*, const char*> wrong[] = {
        {"show none", "none: there is no template of that name"},
        {"delete ../Sunset", "../Sunset: there is no template of that name"},
        {"export Sunset picture.jpg", "picture.jpg: its ending is none of"},
        {"export Sunset no/such/folder.css", "no/such/folder.css: No such file or directory"},
        {"import preferences", "preferences: its ending is none of"},
        {"import none.GRD", "none.GRD: no such file"},
        {"import a.css b.css --name x", "x: several files cannot have one name"},
    };
    for (const auto& [arguments, message] : wrong) {
        const auto ran = run(arguments);
        EXPECT_EQ(ran.exitCode, 2) << arguments;
        EXPECT_THAT(ran.err, HasSubstr(message)) << arguments;
        EXPECT_EQ(ran.out, "") << arguments;
    }
}

TEST_F(TemplatesCommand, NamesThatNoTemplateCanHaveAreRefusedBeforeAnythingIsWritten) {
    writeContent(player_.folder() / "a.css", "linear-gradient(red, blue)");
    const std::pair<const char*, const char*> wrong[] = {
        {"a:b", "a:b: it cannot be the name of a template"},
        {"._x", "._x: it cannot be the name of a template"},
        {"''", "a template's name cannot be empty"},
        {"'\u65E5'", "the host's encoding has no character \u65E5"},
        {"$(printf '\\377')", "the name is not UTF-8"},
    };
    for (const auto& [name, message] : wrong) {
        const auto ran = run(std::string("import a.css --name ") + name);
        EXPECT_EQ(ran.exitCode, 2) << name;
        EXPECT_THAT(ran.err, HasSubstr(message));
        EXPECT_FALSE(fs::exists(templateFolder(player_))) << name;
    }
    EXPECT_EQ(run("import a.css --name a/b").exitCode, 0);
    EXPECT_TRUE(fs::exists(templateFolder(player_) / "a:b.GRD"));
}

TEST_F(TemplatesCommand, ADecomposedNameIsTheSameAsAComposedOne) {
    writeContent(player_.folder() / "a.css", "linear-gradient(red, blue)");
    EXPECT_EQ(run("import a.css --name 'Cafe\u0301'").exitCode, 0);
    EXPECT_EQ(run("list").out, "Caf\u00E9\n");
    EXPECT_EQ(run("show 'Cafe\u0301'").exitCode, 0);
    EXPECT_EQ(run("show 'Caf\u00E9'").exitCode, 0);
    EXPECT_EQ(run("export 'Cafe\u0301.GRD' out.css").exitCode, 0);
    EXPECT_EQ(run("delete 'Cafe\u0301'").exitCode, 0);
    EXPECT_EQ(run("list").out, "");
}

TEST_F(TemplatesCommand, HelpIsCompleteAndAMissingActionIsMisuse) {
    const auto help = run("--help");
    EXPECT_EQ(help.exitCode, 0);
    for (const char* action : {"list", "show", "export", "import", "delete"})
        EXPECT_THAT(help.out, HasSubstr(action));
    EXPECT_EQ(run("").exitCode, 2);
    EXPECT_EQ(run("show").exitCode, 2);
}

} // namespace
