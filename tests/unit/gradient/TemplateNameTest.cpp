// Asking for a template's name: what is offered, what comes back, and in which order the host is called.
#include "Gradient/TemplateUtil/TemplateNameDialog.h"
#include "tests/unit/gradient/EditorStage.h"
#include "tests/unit/gradient/ScriptedUser.h"

#include <gmock/gmock.h>

namespace tests {
namespace {

using easel::runtime::Dialog;
using testing::ElementsAre;

constexpr int kNameItem = 4;

// What asking with this text to offer gave, and the name afterwards. The host's calls made meanwhile are put
// into `calls`.
std::pair<bool, std::string> askedWith(std::string offered, std::vector<ScriptedUser::Step> steps,
                                       std::vector<std::string>* calls = nullptr) {
    ScriptedUser user(std::move(steps));
    EditorStage stage(user);
    stage.process().journal().switchOn();
    const bool confirmed = ModalGetTemplateName(offered);
    if (calls != nullptr)
        *calls = stage.process().journal().take();
    EXPECT_EQ(stage.process().ports().current(), nullptr) << "the port is as it was";
    return {confirmed, offered};
}

TEST(TemplateName, TheGivenNameIsOfferedSelectedWhole) {
    EXPECT_EQ(
        askedWith("Offered", {[](Dialog& dialog) {
                      EXPECT_EQ(dialog.id(), 5206);
                      EXPECT_TRUE(dialog.shown());
                      EXPECT_EQ(dialog.item(kNameItem)->text, "Offered");
                      EXPECT_EQ(dialog.item(kNameItem)->selection, (easel::runtime::TextSelection{0, 7}));
                      dialog.hit(kOKItem);
                  }}),
        (std::pair<bool, std::string>(true, "Offered")));
}

TEST(TemplateName, CancelLeavesTheGivenName) {
    EXPECT_EQ(askedWith("Offered", {[](Dialog& dialog) { dialog.enterText(kNameItem, "Other"); },
                                    [](Dialog& dialog) { dialog.hit(kCancelItem); }}),
              (std::pair<bool, std::string>(false, "Offered")));
}

TEST(TemplateName, OkWithoutANameIsNoConfirmation) {
    EXPECT_EQ(askedWith("Offered", {[](Dialog& dialog) { dialog.enterText(kNameItem, ""); },
                                    [](Dialog& dialog) { dialog.hit(kOKItem); }}),
              (std::pair<bool, std::string>(false, "")));
}

TEST(TemplateName, ADialogThatCannotBeMadeIsACancel) {
    const TemporaryFolder folder;
    easel::runtime::Process withoutResources(easel::classic::StoragePlaces::within(folder.path()));
    ScriptedUser user({});
    const easel::runtime::UserScope inFront(withoutResources, user);
    std::string name = "Offered";
    EXPECT_FALSE(ModalGetTemplateName(name));
    EXPECT_EQ(name, "Offered");
}

TEST(TemplateName, OnlyATextThatIsTooLongIsWrittenBack) {
    std::vector<std::string> calls;
    askedWith("",
              {[](Dialog& dialog) { dialog.enterText(kNameItem, "abcdefghijklmnopqrst"); },
               [](Dialog& dialog) { dialog.typeCharacter(U'u'); }, [](Dialog& dialog) { dialog.hit(3); }},
              &calls);
    EXPECT_THAT(calls, ElementsAre("StGrafPortSaver()", "TessGetNewDialog(5206)", "SetPortDialogPort()",
                                   "SetDLOGText(4, \"\")", "SelectDLOGText(4, 0, 32767)", "GetDialogWindow()",
                                   "ShowWindow()", "ModalDialog()", "GetDLOGText(4)", "ModalDialog()",
                                   "GetDLOGText(4)", "SetDLOGText(4, \"abcdefghijklmnopqrst\")",
                                   "ModalDialog()", "ModalDialog()", "GetDLOGText(4)", "DisposeDialog()"));
}

} // namespace
} // namespace tests
