// What is read off the definitions of a command line.
#include "easel/commands/CommandText.h"

#include <CLI/CLI.hpp>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

using namespace easel::commands;
using testing::ElementsAre;

namespace {

TEST(CommandText, OptionsHaveAllTheirNamesAndTheNameOfTheirValue) {
    CLI::App app{"Draws", "easel"};
    std::string width;
    bool plain = false;
    app.set_help_flag("");
    app.add_option("-w,--width", width, "How wide")->type_name("NUMBER");
    app.add_flag("--plain", plain, "Without extras");
    const CommandText text = describe(app);
    EXPECT_EQ(text.summary, "Draws");
    ASSERT_EQ(text.options.size(), 2U);
    EXPECT_THAT(text.options[0].names, ElementsAre("-w", "--width"));
    EXPECT_EQ(text.options[0].value, "NUMBER");
    EXPECT_EQ(text.options[0].help, "How wide");
    EXPECT_THAT(text.options[1].names, ElementsAre("--plain"));
    EXPECT_EQ(text.options[1].value, "");
    EXPECT_TRUE(text.arguments.empty());
}

TEST(CommandText, ArgumentsAreRequiredOrRepeatAsDefined) {
    CLI::App app{"Draws", "easel"};
    std::string one;
    std::vector<std::string> many;
    app.add_option("DRAWING", one, "The drawing")->required();
    app.add_option("FILE", many, "More");
    const CommandText text = describe(app);
    ASSERT_EQ(text.arguments.size(), 2U);
    EXPECT_EQ(text.arguments[0].name, "DRAWING");
    EXPECT_EQ(text.arguments[0].help, "The drawing");
    EXPECT_TRUE(text.arguments[0].required);
    EXPECT_FALSE(text.arguments[0].repeats);
    EXPECT_FALSE(text.arguments[1].required);
    EXPECT_TRUE(text.arguments[1].repeats);
}

TEST(CommandText, CommandsKnowThePathThatLeadsToThem) {
    CLI::App app{"Draws", "easel"};
    app.add_subcommand("templates", "Keep templates")
        ->add_subcommand("list", "Print names")
        ->footer("That is all.");
    const CommandText text = describe(app);
    ASSERT_EQ(text.commands.size(), 1U);
    ASSERT_EQ(text.commands[0].commands.size(), 1U);
    const CommandText& list = text.commands[0].commands[0];
    EXPECT_THAT(list.path, ElementsAre("easel", "templates", "list"));
    EXPECT_EQ(list.name(), "list");
    EXPECT_EQ(list.pathWith("-"), "easel-templates-list");
    EXPECT_EQ(list.footer, "That is all.");
}

TEST(CommandText, WhatHelpDoesNotShowIsLeftOut) {
    CLI::App app{"Draws", "easel"};
    bool secret = false;
    app.set_help_flag("");
    app.add_flag("--secret", secret, "Hidden")->group("");
    app.add_subcommand("hidden", "Hidden")->group("");
    const CommandText text = describe(app);
    EXPECT_TRUE(text.options.empty());
    EXPECT_TRUE(text.commands.empty());
}

} // namespace
