// The completion script for zsh, by what its completion system is told.
#include "easel/commands/Completions.h"
#include "tests/unit/commands/SampleProgram.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using testing::HasSubstr;
using testing::Not;
using testing::StartsWith;

namespace {

const std::string& script() {
    static const std::string kScript = easel::commands::zshCompletion(tests::sampleProgram());
    return kScript;
}

// The body of one of the script's functions.
std::string functionNamed(const std::string& name) {
    const std::string head = "\n" + name + "() {\n";
    const auto begin = script().find(head);
    if (begin == std::string::npos)
        return "none";
    return script().substr(begin + head.size(), script().find("\n}\n", begin) - begin - head.size());
}

TEST(ZshCompletion, BeginsWithTheProgramItCompletesAndEndsByDoingIt) {
    EXPECT_THAT(script(), StartsWith("#compdef easel\n"));
    EXPECT_THAT(script(), testing::EndsWith("\n_easel \"$@\"\n"));
}

TEST(ZshCompletion, EachNameOfAnOptionIsOfferedWithItsHelpAndWhatFollowsIt) {
    EXPECT_EQ(functionNamed("_easel_render"),
              "    _arguments -s \\\n"
              "        '-w[How wide it is]:NUMBER: ' \\\n"
              "        '--width[How wide it is]:NUMBER: ' \\\n"
              "        '--plain[Without \\[extras\\]\\: it'\\''s short]' \\\n"
              "        ':DRAWING:_files -g \"*.(svg|svgz|SVG|SVGZ)(-.)\"' \\\n"
              "        ':PICTURE:_files -g \"*.(png|pdf|svg|PNG|PDF|SVG)(-.)\"'");
    EXPECT_THAT(functionNamed("_easel_templates_show"),
                HasSubstr("'--to[Write it there]:FOLDER:_files -/' \\\n"
                          "        ':TEMPLATE:_easel_template_names'"));
}

TEST(ZshCompletion, ACommandWithCommandsOffersThemFirst) {
    EXPECT_THAT(functionNamed("_easel"),
                StartsWith("    local -a commands=(\n        'render:Write a picture'\n"
                           "        'templates:Keep templates')\n"
                           "    local next=_easel_$words[2]\n"));
    EXPECT_THAT(functionNamed("_easel"), HasSubstr("'*:FILE:_files'"));
    EXPECT_THAT(functionNamed("_easel_templates"), HasSubstr("'list:Print names'"));
    EXPECT_THAT(functionNamed("_easel_templates_list"), Not(HasSubstr("commands")));
}

TEST(ZshCompletion, NamesOfTemplatesAreAskedOfTheProgram) {
    EXPECT_THAT(functionNamed("_easel_template_names"), HasSubstr("easel templates list"));
}

} // namespace
