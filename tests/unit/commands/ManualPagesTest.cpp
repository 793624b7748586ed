// Manual pages, as the man macros of troff want them.
#include "easel/commands/ManualPages.h"
#include "tests/unit/commands/SampleProgram.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using namespace easel::commands;
using testing::HasSubstr;
using testing::Not;
using testing::StartsWith;

namespace {

std::string pageOf(const CommandText& command) {
    return manualPage(tests::sampleProgram(), command, "1.2");
}

// The page of a program whose footer this is, from its footer on.
std::string footerPage(const std::string& footer) {
    CommandText program;
    program.path = {"easel"};
    program.summary = "Draw";
    program.footer = footer;
    const std::string page = manualPage(program, program, "1.2");
    const std::string before = ".SH COMMANDS\n";
    return page.substr(page.find(before) + before.size());
}

TEST(ManualPages, APageBeginsWithItsTitleItsNameAndHowTheCommandIsCalled) {
    EXPECT_THAT(
        pageOf(tests::sampleProgram().commands[0]),
        StartsWith(".TH EASEL\\-RENDER 1 \"\" \"Easel 1.2\" \"User Commands\"\n"
                   ".SH NAME\neasel\\-render \\- Write a picture\n"
                   ".SH SYNOPSIS\n\\fBeasel render\\fR [\\fIOPTION\\fR...] \\fIDRAWING\\fR \\fIPICTURE\\fR\n"
                   ".SH OPTIONS\n"));
}

TEST(ManualPages, ArgumentsThatMayBeLeftOutOrRepeatedAreMarked) {
    EXPECT_THAT(
        pageOf(tests::sampleProgram()),
        HasSubstr(
            "\\fBeasel\\fR [\\fIOPTION\\fR...] [\\fIFILE\\fR...]\n.br\n\\fBeasel\\fR \\fICOMMAND\\fR ...\n"));
}

TEST(ManualPages, EachOptionIsListedWithItsNamesItsValueAndItsHelp) {
    EXPECT_THAT(pageOf(tests::sampleProgram().commands[0]),
                HasSubstr(".TP\n\\fIDRAWING\\fR\nWhat to draw.\n.TP\n\\fIPICTURE\\fR\nWhere to.\n"
                          ".TP\n\\fB\\-w\\fR, \\fB\\-\\-width\\fR \\fINUMBER\\fR\nHow wide it is.\n"
                          ".TP\n\\fB\\-\\-plain\\fR\nWithout [extras]: it's short.\n"));
}

TEST(ManualPages, TheProgramsPageNamesTheCommandsAndTheirPages) {
    const std::string page = pageOf(tests::sampleProgram());
    EXPECT_THAT(page, HasSubstr(".SH COMMANDS\n.TP\n\\fBrender\\fR\nWrite a picture; see easel\\-render(1).\n"
                                ".TP\n\\fBtemplates\\fR\nKeep templates; see easel\\-templates(1).\n"));
    EXPECT_THAT(page, Not(HasSubstr("Print one")));
}

TEST(ManualPages, ACommandsPageTellsOfTheCommandsBelowItInFull) {
    EXPECT_THAT(
        pageOf(tests::sampleProgram().commands[1]),
        HasSubstr(
            ".SH COMMANDS\n"
            ".SS list\n\\fBeasel templates list\\fR\n.PP\nPrint names.\n"
            ".SS show\n\\fBeasel templates show\\fR [\\fIOPTION\\fR...] \\fITEMPLATE\\fR\n.PP\nPrint one.\n"
            ".TP\n\\fITEMPLATE\\fR\nWhich one.\n.TP\n\\fB\\-\\-to\\fR \\fIFOLDER\\fR\nWrite it there.\n"
            ".PP\nColors are hexadecimal.\n.PP\nA second line.\n"));
}

TEST(ManualPages, APageNamesTheOthersAtItsEnd) {
    EXPECT_THAT(pageOf(tests::sampleProgram().commands[0]),
                testing::EndsWith(".SH SEE ALSO\n.BR easel (1),\n.BR easel\\-templates (1)\n"));
    EXPECT_THAT(pageOf(tests::sampleProgram()),
                testing::EndsWith(".SH SEE ALSO\n.BR easel\\-render (1),\n.BR easel\\-templates (1)\n"));
}

TEST(ManualPages, LinesThatEndInAColonOrBeginWithOneOrTwoWordsAndAColonAreHeadings) {
    EXPECT_THAT(footerPage("Files:\n  ~/.easel\nSettings."),
                StartsWith(".SH FILES\n.nf\n  ~/.easel\n.fi\n.PP\nSettings.\n.SH SEE ALSO\n"));
    EXPECT_THAT(footerPage("Exit status: 0 if all went well\n\nMore."),
                StartsWith(".SH EXIT STATUS\n0 if all went well\n.PP\nMore.\n"));
    EXPECT_THAT(footerPage("It is like this: so"), StartsWith(".PP\nIt is like this: so\n"));
    EXPECT_THAT(footerPage(" set: in"), StartsWith(".PP\n set: in\n"));
}

TEST(ManualPages, NoTextIsTakenForARequest) {
    EXPECT_THAT(footerPage(".easel"), StartsWith(".PP\n\\&.easel\n"));
    EXPECT_THAT(footerPage("'tis"), StartsWith(".PP\n\\&'tis\n"));
    EXPECT_THAT(footerPage("C:\\x"), StartsWith(".SH C\n\\ex\n"));
}

} // namespace
